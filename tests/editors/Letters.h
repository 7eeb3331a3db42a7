#pragma once

#include <gtest/gtest.h>

#include "data/Result.h"
#include "editors/CaveModel.h"
#include "support/Scene.h"

namespace zorik::test {

// A cave of five cells by five with a frame of steel, and in it a dog, a gem and an amoeba.
inline const Picture kFive = {"WWWWW", "W1..W", "W.D.W", "W..AW", "WWWWW"};

// The cells of the edited cave, a string for each row.
inline Picture LettersOf(const CaveRecord& cave) {
  Picture rows;
  for (std::size_t y = 0; y < cave.Height; ++y) {
    std::string row;
    for (std::size_t x = 0; x < cave.Width; ++x) row += cave.Cells[x][y];
    rows.push_back(row);
  }
  return rows;
}
inline Picture LettersOf(const CaveModel& model) {
  return LettersOf(model.Cave());
}

// A cave of one letter.
inline Picture Full(int width, int height, char letter) {
  return Picture(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), letter));
}

// A model with a cave open in which nothing had to be put right.
inline CaveModel Opened(const Picture& picture, const Numbers& numbers = {}) {
  CaveModel model;
  const auto report = model.OpenCave(CaveTextOf(picture, numbers));
  EXPECT_TRUE(report && report->empty());
  return model;
}

}  // namespace zorik::test
