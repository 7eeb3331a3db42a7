#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/Chance.h"
#include "data/ResultFwd.h"

namespace zorik {

// A collection as text files that a person can read, edit and compare: UTF-8, lines ended by line feed.
//
// A file is a list of entries, "key: text". A text of several lines stands below its key, each line behind
// "| ". Lines that begin with "#" and empty lines say nothing. In a text, "\\" is a backslash and "\xHH" the
// byte with this hexadecimal code in Windows-1250; so control characters, odd bytes and blanks at the ends of
// a text are written.
//
// collection.txt holds, in the order of the collection's lines:
//
//   name: First steps         line 1
//   open: 1 4                 numbers of the caves that are open from the start
//   author: Somebody          line 2
//   description:
//   | Caves for those
//   | who never dug before.
//   mail: somebody@there      line 3
//   flag: 0                   one character; "Q" closes the collection to the editor, see below
//   cave: cave-01.txt         a line for each cave, in their order: the name of the cave's file
//   cave: cave-02.txt
//   line: ...                 a line that is no proper cave, as it stands
//   congratulation: Well dug, $P points!
//
// The flag tells whether the collection's author has closed it. Its code decides: from "Q" on (81) the editor
// opens an empty collection instead; below, and "0" stands for that, it opens the collection. Whoever plays
// does not notice. "0" if the entry is left out; the editor itself writes nothing else, so a collection is
// closed here. It is a request and no lock: these texts can be had of a closed collection as well.
//
// A first, second or third line that does not have its proper form is written as it stands, as line-1, line-2
// or line-3. A file that ends early has no entries for what is missing. "line" and "congratulation" mean the
// same, a plain line, but a congratulation must not end like a cave; the last line is called congratulation
// if it is no cave.
//
// A cave's file holds name, description, the numbers time, gems, points-before, points-after,
// magic-wall-time, amoeba-time, colouring and slime, the rows of its cells and the cat's program:
//
//   name: The first cave
//   ...
//   marker: 07                only where the number in the cave's marker is not the cave's own
//   cells:
//   | WWWWW
//   | W1;DT
//   | WWWWW
//   cat:                      commands of two characters, a line for each label
//   | *A -E
//   | *B -M /Z
//
// A program that is not made of such commands stands in cat-text as it is. Description, marker and program
// may be left out, all others not.

// The file that tells what the collection is, and names those of its caves.
inline constexpr const char* kCollectionFile = "collection.txt";

// Contents by file names.
using TextFiles = std::map<std::string, std::string>;

// The readable files of a collection. Any bytes will do: PackCollection gives the same plain lines again.
TextFiles UnpackCollection(std::string_view bytes);

// The collection file that the readable files tell. Files that collection.txt does not name play no part.
// Fails with the name of the file and, where there is one, the number of the line.
Result<std::string> PackCollection(const TextFiles& files, Chance& decoration);

}  // namespace zorik
