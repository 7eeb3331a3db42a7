#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Samples.h"
#include "data/CaveO.h"
#include "data/FileTrouble.h"
#include "data/Files.h"
#include "data/Result.h"
#include "flow/SadaModel.h"
#include "support/TempFolder.h"

namespace zorik::test {

inline SadaWords Words() {
  return {"Nova", "Hurra, $P", {"Mala", "Velka", "Popis"}};
}

// A collection, and a folder for its files.
class SadaTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder_ + "/" + name; }
  std::string Write(const std::string& name, const std::string& bytes) const {
    EXPECT_TRUE(WriteWhole(Path(name), bytes));
    return Path(name);
  }
  std::vector<std::string> Saved(const std::string& name = "a.zk") {
    const auto saved = sada_.Save(Path(name));
    EXPECT_TRUE(saved) << (saved ? "" : saved.Message());
    const Result<std::string> bytes = ReadWhole(Path(name));
    return bytes ? PlainLines(*bytes) : std::vector<std::string>();
  }
  // The file that would be written, with the same decoration each time.
  std::string Bytes() {
    EditedCollection sada;
    sada.Name = sada_.Text(SadaText::Name);
    sada.Author = sada_.Text(SadaText::Author);
    sada.Mail = sada_.Text(SadaText::Mail);
    sada.Description = sada_.Text(SadaText::Description);
    sada.CongratulationText = sada_.CongratulationText();
    for (int number = 1; number <= sada_.ListCount(); ++number) {
      sada.CaveList.push_back(sada_.Cave(number));
      sada.OpenFlags.set(static_cast<std::size_t>(number), sada_.IsOpen(number));
    }
    Chance decoration(1);
    const Result<std::string> bytes = BuildCollection(sada, decoration);
    EXPECT_TRUE(bytes);
    return bytes ? *bytes : std::string();
  }
  SadaModel::OpenReport Opened(const std::string& bytes) {
    const auto report = sada_.Open(Write("o.zk", bytes));
    EXPECT_TRUE(report) << (report ? "" : report.Message());
    return report ? *report : SadaModel::OpenReport();
  }

  // Opens a collection of caves with these names; the open ones are marked by "*" in front.
  void OpenCaves(const std::vector<std::string>& names) {
    std::vector<std::string> body;
    std::string open;
    for (std::size_t i = 0; i < names.size(); ++i) {
      const bool marked = names[i].front() == '*';
      const int number = static_cast<int>(i + 1);
      body.push_back(samples::CaveText(marked ? names[i].substr(1) : names[i]) + "---" +
                     MarkerDigits(number));
      if (marked) open += static_cast<char>(kOpenCaveOffset + number);
    }
    body.push_back("Gratuluji");
    Opened(samples::CollectionFile(body, open));
  }
  void OpenMany(int count) {
    std::vector<std::string> names;
    for (int i = 1; i <= count; ++i) names.push_back("K" + std::to_string(i));
    OpenCaves(names);
  }

  // The names of the list, those of open caves with "*" in front.
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int i = 1; i <= sada_.ListCount(); ++i) rows.push_back((sada_.IsOpen(i) ? "*" : "") + sada_.Name(i));
    return rows;
  }
  using Names = std::vector<std::string>;

  TempFolder temp_{"sada"};
  const std::string folder_ = temp_.Path();
  SadaModel sada_{Words(), 1};
};

}  // namespace zorik::test
