#include "screens/StatisticsWindow.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "screens/PlainText.h"
#include "screens/SkinButton.h"
#include "screens/Sparkline.h"
#include "screens/StartWords.h"
#include "screens/TimeWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"
#include "skin/ToQString.h"

namespace zorik {
namespace {

constexpr int kLetters = 14;
constexpr int kHeadLetters = 20;
constexpr int kMargin = 20;
constexpr int kGap = 10;
constexpr int kDarker = 140;  // percent: the list's ground
constexpr QSize kList(580, 300);
constexpr QSize kBars(120, 14);

// The window answers again after so long, and then reads on.
constexpr int kMost = 15;           // milliseconds
constexpr int kTicksAtATime = 500;  // of play

enum Column { kName, kLine, kBest, kPoints, kColumns };

// The points of each cave by its number, 0 where there is no win; caves without a number come last.
std::vector<int> PointsOf(const CollectionStatistics& collection) {
  std::vector<int> points;
  for (const WonCave& cave : collection.Caves) {
    const auto place = cave.Number > 0 ? static_cast<std::size_t>(cave.Number) - 1 : points.size();
    points.resize(std::max(points.size(), place + 1));
    points[place] = std::max(points[place], cave.BestScore);
  }
  return points;
}

QString CaveWords(const WonCave& cave) {
  const QString name = OneLine(ToQString(cave.Name));
  return cave.Number > 0 ? QString("%1  ").arg(cave.Number, 2, 10, QChar('0')) + name : name;
}

void AlignNumbers(QTreeWidgetItem& row) {
  for (const int column : {kBest, kPoints}) row.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
}

}  // namespace

StatisticsWindow::StatisticsWindow(Skin& skin, const std::string& folder, const std::string& player,
                                   QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      statistics_(folder, player),
      lblCaption_(NewLabel(this)),
      lblSums_(NewLabel(this)),
      caves_(new QTreeWidget(this)),
      lblRemarks_(NewLabel(this)),
      ok_(new SkinButton(this)) {
  setObjectName("statistics");
  lblCaption_->setObjectName("lblCaption");
  lblSums_->setObjectName("lblSums");
  lblRemarks_->setObjectName("lblRemarks");
  caves_->setObjectName("lstCaves");
  ok_->setObjectName("ok");
  connect(ok_, &SkinButton::clicked, this, &StatisticsWindow::OnEnter);
  connect(&reading_, &QTimer::timeout, this, &StatisticsWindow::ReadOn);
  LayOut();
  SkinIt(player);
  FitList();
  ReadOn();
  if (!AllRead()) reading_.start(0);
  adjustSize();
}

void StatisticsWindow::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblCaption_, 0, Qt::AlignHCenter);
  lblSums_->setAlignment(Qt::AlignCenter);
  rows->addWidget(lblSums_);
  caves_->setFixedSize(kList);
  caves_->setColumnCount(kColumns);
  caves_->setUniformRowHeights(true);
  caves_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  caves_->header()->setSectionsMovable(false);
  caves_->header()->setStretchLastSection(false);
  rows->addWidget(caves_);
  rows->addWidget(lblRemarks_);
  rows->addWidget(ok_, 0, Qt::AlignHCenter);
}

// A small screen leaves the list less room; what is to be remarked takes two lines of it.
void StatisticsWindow::FitList() {
  const QSize others = sizeHint() - kList + QSize(0, 2 * fontMetrics().lineSpacing());
  caves_->setFixedSize(kList.boundedTo(screen()->availableSize() - others));
}

void StatisticsWindow::SkinIt(const std::string& player) {
  const Tones tones = TonesOf(skin_.Colour("dialog.color", kPlainGround));
  bars_ = tones.mark;
  dots_ = tones.quiet;
  Surface().SetColour(tones.ground);
  QPalette colours = PaletteOf(tones);
  setPalette(colours);
  QPalette list = colours;
  list.setColor(QPalette::Base, tones.ground.darker(kDarker));
  list.setColor(QPalette::Text, tones.text);
  list.setColor(QPalette::Highlight, tones.line);  // on which bars are seen, too
  list.setColor(QPalette::HighlightedText, tones.text);
  caves_->setPalette(list);
  setFont(GameFont(kLetters));
  colours.setColor(QPalette::WindowText, tones.mark);
  lblCaption_->setPalette(colours);
  lblCaption_->setFont(GameFont(kHeadLetters));
  const QString title = kStatisticsOfWords.In(skin_).replace("?1?", ToQString(player));
  SetTitle(*this, title);
  lblCaption_->setText(OneLine(title, kMostInCaption));
  caves_->setHeaderLabels({OneLine(kCaveColumn.In(skin_)), QString(), OneLine(kBestTimeColumn.In(skin_)),
                           OneLine(kPointsWords.In(skin_))});
  caves_->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
  caves_->header()->setSectionResizeMode(kLine, QHeaderView::ResizeToContents);
  caves_->header()->setSectionResizeMode(kBest, QHeaderView::ResizeToContents);
  caves_->header()->setSectionResizeMode(kPoints, QHeaderView::ResizeToContents);
  ok_->SetPicture(skin_.Picture("dialog.ok.image"));
  ok_->SetWords(kOkWords.In(skin_));
}

void StatisticsWindow::ReadOn() {
  QElapsedTimer time;
  time.start();
  while (!statistics_.AtEnd() && !time.hasExpired(kMost)) statistics_.ReadOn(kTicksAtATime);
  ShowSums();
  if (!statistics_.AtEnd()) return;
  reading_.stop();
  ShowCollections();
}

void StatisticsWindow::ShowSums() {
  const auto number = [this](const StartWords& words, std::int64_t value) {
    return OneLine(words.In(skin_)) + ": " +
           QLocale(LanguageOf(skin_)).toString(static_cast<qlonglong>(value));
  };
  const QString time = OneLine(kTimePlayedWords.In(skin_)) + ": " + TimeWords(statistics_.Ticks(), skin_);
  lblSums_->setText(number(kCavesWonWords, statistics_.Caves()) + "   " + time + " (" +
                    number(kTicksWords, statistics_.Ticks()) + ")\n" +
                    number(kGemsTakenWords, statistics_.Gems()) + "   " +
                    number(kPointsWords, statistics_.Points()));
  lblRemarks_->setText(Remarks());
  lblRemarks_->setVisible(!lblRemarks_->text().isEmpty());
}

QString StatisticsWindow::Remarks() const {
  const auto counted = [this](const StartWords& words, std::size_t value) {
    return OneLine(words.In(skin_).replace("?1?", QString::number(value)));
  };
  if (!AllRead()) {
    return counted(kReadingWords, statistics_.FilesRead())
        .replace("?2?", QString::number(statistics_.Files()));
  }
  QStringList remarks;
  if (statistics_.Collections().empty()) remarks += OneLine(kNothingWonWords.In(skin_));
  if (statistics_.OfOthers() > 0)
    remarks += counted(kOfOthersWords, static_cast<std::size_t>(statistics_.OfOthers()));
  if (statistics_.Faulty() > 0)
    remarks += counted(kFaultyWords, static_cast<std::size_t>(statistics_.Faulty()));
  return remarks.join('\n');
}

void StatisticsWindow::ShowCollections() {
  for (const CollectionStatistics& collection : statistics_.Collections()) Add(collection);
  if (QTreeWidgetItem* const first = caves_->topLevelItem(0)) {
    first->setExpanded(true);
    caves_->setCurrentItem(first);
  }
}

void StatisticsWindow::Add(const CollectionStatistics& collection) {
  auto* const head = new QTreeWidgetItem(caves_);
  head->setText(kName, OneLine(ToQString(collection.Name)) + QString(" (%1)").arg(collection.Caves.size()));
  std::int64_t ticks = 0;
  for (const WonCave& cave : collection.Caves) ticks += cave.BestTicks;
  head->setText(kBest, TimeWords(ticks, skin_));
  head->setText(kPoints, QString::number(collection.Points));
  AlignNumbers(*head);
  const QImage line = Sparkline(PointsOf(collection), kBars, bars_, dots_, devicePixelRatioF());
  head->setData(kLine, Qt::DecorationRole, QPixmap::fromImage(line));
  for (const WonCave& cave : collection.Caves) {
    auto* const row = new QTreeWidgetItem(head, {CaveWords(cave), QString(), TimeWords(cave.BestTicks, skin_),
                                                 QString::number(cave.BestScore)});
    AlignNumbers(*row);
  }
}

}  // namespace zorik
