#!/usr/bin/env python3
"""Plants faults into a copy of src/, each behind a number, so that one build holds them all.

plant.py BUILD TREE [FILE...]: writes the sources below src/ (or the named ones) with faults to TREE/src and the list
of the faults to TREE/faults.json. BUILD is a configured build folder; its compile_commands.json tells how each file is
compiled. A fault changes one thing: a condition turned round, a half of one left out, a bound shifted by one, a sign,
a number, a call, an assignment or an early end dropped.
"""
import json
import os
import re
import shlex
import sys
from concurrent.futures import ProcessPoolExecutor
from pathlib import Path

from clang.cindex import CursorKind as K, Index, TranslationUnit, TypeKind as T

ROOT = Path(__file__).resolve().parents[2]
# Macros that stand for nothing or for a name alone: code beside them may be changed.
PLAIN_MACROS = {"emit", "Q_EMIT", "NULL", "assert"}
LOGICAL = {"&&", "||"}
BOUNDS = {"<": "+", "<=": "-", ">": "-", ">=": "+"}
WHOLE = {T.INT, T.UINT, T.LONG, T.ULONG, T.LONGLONG, T.ULONGLONG, T.SHORT, T.USHORT, T.UCHAR, T.SCHAR}
NUMBERS = WHOLE | {T.DOUBLE, T.FLOAT}
FUNCTIONS = {K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.DESTRUCTOR, K.CONVERSION_FUNCTION}


class Planter:
    """Collects what is written into one file, at which byte."""

    def __init__(self, path, unit):
        self.path, self.unit = path, unit
        self.text = path.read_bytes()
        self.inserts = []  # (byte, order, text)
        self.faults = []
        self.macros = [(c.extent.start.offset, c.extent.end.offset) for c in unit.cursor.get_children()
                       if c.kind == K.MACRO_INSTANTIATION and self.here(c) and c.spelling not in PLAIN_MACROS]

    def here(self, cursor):
        place = cursor.extent.start
        return place.file is not None and place.file.name == str(self.path)

    def whole(self, start, end):
        """No macro begins, ends or stands in there."""
        return start < end and not any(a < end and start < b for a, b in self.macros)

    def add(self, kind, cursor, before, after, start=None, end=None):
        start = cursor.extent.start.offset if start is None else start
        end = cursor.extent.end.offset if end is None else end
        if not self.here(cursor) or not self.whole(start, end):
            return
        number = f"@{len(self.faults)}@"
        # The outer of two that begin at one byte is met first and opens first; it closes last.
        order = len(self.faults)
        self.inserts.append((start, 1, order, before.replace("#", number)))
        self.inserts.append((end, 0, -order, after.replace("#", number)))
        was = self.text[start:end].decode(errors="replace")
        self.faults.append({"file": str(self.path.relative_to(ROOT)), "line": cursor.extent.start.line, "kind": kind,
                            "was": " ".join(was.split())[:100]})

    def written(self, first):
        pieces, place = [], 0
        for at, _, _, piece in sorted(self.inserts):
            pieces += [self.text[place:at], re.sub("@([0-9]+)@", lambda m: str(first + int(m[1])), piece).encode()]
            place = at
        return b'#include "fault.h"\n#line 1 "%s"\n' % str(self.path).encode() + b"".join(pieces) + self.text[place:]

    # What may be changed in the body of a function.

    def walk(self, cursor, parent=None):
        kind = cursor.kind
        if kind in (K.DECL_STMT, K.VAR_DECL) and self.is_constant(cursor) or \
                kind in (K.STATIC_ASSERT, K.CASE_STMT):
            for child in list(cursor.get_children())[1:] if kind == K.CASE_STMT else []:
                self.statement(child)
                self.walk(child, cursor)
            return
        children = list(cursor.get_children())
        if kind in (K.IF_STMT, K.WHILE_STMT, K.CONDITIONAL_OPERATOR) and children:
            if kind == K.IF_STMT and self.source(cursor).startswith(b"if constexpr"):
                return
            self.condition(children[0])
        if kind == K.IF_STMT:
            for child in children[1:]:
                self.statement(child)
        elif kind == K.COMPOUND_STMT:
            for child in children:
                self.statement(child)
        elif kind in (K.FOR_STMT, K.WHILE_STMT, K.CXX_FOR_RANGE_STMT, K.DEFAULT_STMT) and children:
            self.statement(children[-1])
        elif kind == K.BINARY_OPERATOR and len(children) == 2:
            self.operator(cursor, *children)
        elif kind == K.INTEGER_LITERAL and self.changeable(parent):
            self.number(cursor)
        elif kind == K.CXX_BOOL_LITERAL_EXPR:
            self.add("truth", cursor, "fault::Flip(#, ", ")")
        elif kind == K.RETURN_STMT and children and self.type(children[0]) == T.BOOL and \
                children[0].kind != K.CXX_BOOL_LITERAL_EXPR:
            self.add("answer", children[0], "fault::Flip(#, ", ")")
        for child in children:
            self.walk(child, cursor)

    def source(self, cursor):
        return self.text[cursor.extent.start.offset:cursor.extent.end.offset]

    def is_constant(self, cursor):
        return self.source(cursor).startswith((b"constexpr", b"static constexpr"))

    def changeable(self, parent):
        """Whether a number below this stands for a value, not for a part of a type."""
        return parent.kind not in (K.DECL_REF_EXPR, K.MEMBER_REF_EXPR, K.TYPE_REF, K.TEMPLATE_REF)

    @staticmethod
    def type(cursor):
        return cursor.type.get_canonical().kind

    def condition(self, cursor):
        if cursor.kind in (K.DECL_STMT, K.VAR_DECL, K.CXX_BOOL_LITERAL_EXPR) or not cursor.kind.is_expression():
            return
        self.add("condition", cursor, "fault::Flip(#, static_cast<bool>(", "))")

    def operator(self, cursor, left, right):
        sign = self.text[left.extent.end.offset:right.extent.start.offset].decode(errors="replace").strip()
        if sign in LOGICAL:
            for half in (left, right):
                if sign == "&&":
                    self.add("half", half, "(fault::On(#) || static_cast<bool>(", "))")
                else:
                    self.add("half", half, "(!fault::On(#) && static_cast<bool>(", "))")
        elif sign in BOUNDS and right.kind != K.INTEGER_LITERAL and self.type(right) in WHOLE and self.type(left) in WHOLE:
            self.add("bound", right, "((", f") {BOUNDS[sign]} fault::On(#))")
        elif sign in ("+", "-") and self.type(right) in NUMBERS and self.type(left) in NUMBERS:
            self.add("sign", right, "fault::Neg(#, ", ")")

    def number(self, cursor):
        before = self.text[max(0, cursor.extent.start.offset - 80):cursor.extent.start.offset]
        # Neither an argument of a template nor the length of an array.
        if re.search(rb"\w<[^<>;(){}]*$|>, $|^\s*[\w:<>, ]+ \w+\[$", before.rpartition(b"\n")[2]):
            return
        if self.source(cursor)[:1].isdigit() and self.type(cursor) in WHOLE:
            self.add("number", cursor, "(", " + fault::On(#))")

    def statement(self, cursor):
        """Drops a statement that is an expression, or ends nothing early."""
        ends = {K.RETURN_STMT: "end", K.BREAK_STMT: "end", K.CONTINUE_STMT: "end"}
        if cursor.kind in ends:
            if any(True for _ in cursor.get_children()):
                return
            kind = "end"
        elif cursor.kind in (K.CALL_EXPR, K.UNEXPOSED_EXPR, K.BINARY_OPERATOR, K.COMPOUND_ASSIGNMENT_OPERATOR,
                             K.UNARY_OPERATOR):
            kind = "call" if cursor.kind in (K.CALL_EXPR, K.UNEXPOSED_EXPR) else "assignment"
        else:
            return
        end = self.text.find(b";", cursor.extent.end.offset)
        if end < 0 or self.text[cursor.extent.end.offset:end].strip():
            return
        self.add(kind, cursor, "{ if (!fault::On(#)) ", " }", end=end + 1)


def bodies(cursor, path, text):
    """The functions that are written out in this file; those of constant expressions stay whole."""
    for child in cursor.get_children():
        place = child.extent.start.file
        if place is None or place.name != str(path):
            continue
        if child.kind in FUNCTIONS:
            head = text[child.extent.start.offset:child.extent.end.offset].partition(b"(")[0]
            if child.is_definition() and b"constexpr" not in head:
                yield child
        elif child.kind in (K.NAMESPACE, K.CLASS_DECL, K.STRUCT_DECL, K.UNEXPOSED_DECL, K.LINKAGE_SPEC):
            yield from bodies(child, path, text)


def plant(job):
    path, arguments = job
    unit = Index.create().parse(str(path), args=arguments,
                                options=TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
    errors = [str(d) for d in unit.diagnostics if d.severity >= 3]
    planter = Planter(path, unit)
    for function in bodies(unit.cursor, path, planter.text):
        for child in function.get_children():
            if child.kind == K.COMPOUND_STMT:
                planter.walk(child, function)
    return planter.path, planter.inserts, planter.faults, errors


def arguments_of(command):
    """What the parser needs of a line of the compiler: folders, definitions, the language."""
    words, kept = shlex.split(command["command"]), ["-x", "c++", "-std=c++20", "-w"]
    for at, word in enumerate(words):
        if word.startswith(("-I", "-D")):
            kept.append(word)
        elif word == "-isystem":
            kept += [word, words[at + 1]]
    return kept


def main():
    build, tree = Path(sys.argv[1]), Path(sys.argv[2])
    wanted = {str(Path(name).resolve()) for name in sys.argv[3:]}
    jobs = {}
    for command in json.loads((build / "compile_commands.json").read_text()):
        path = Path(command["file"])
        if not path.is_relative_to(ROOT / "src") or "autogen" in str(path):
            continue
        if not wanted or str(path) in wanted:
            jobs[path] = arguments_of(command)
    faults = []
    with ProcessPoolExecutor(os.cpu_count()) as pool:
        for path, inserts, found, errors in pool.map(plant, sorted(jobs.items())):
            for error in errors[:3]:
                print(f"{path}: {error}", file=sys.stderr)
            planter = object.__new__(Planter)
            planter.path, planter.text, planter.inserts, planter.faults = path, path.read_bytes(), inserts, found
            target = tree / path.relative_to(ROOT)
            target.write_bytes(planter.written(len(faults) + 1))
            faults += [dict(fault, number=len(faults) + 1 + at) for at, fault in enumerate(found)]
    (tree / "faults.json").write_text(json.dumps(faults, indent=0))
    print(f"{len(faults)} faults in {len(jobs)} files")


if __name__ == "__main__":
    main()
