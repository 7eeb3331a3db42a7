#include "editors/SidePanel.h"

#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "platform/UserStore.h"
#include "screens/PlainText.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr const char* kWanted = "Editors/SidePanel";
constexpr const char* kWidth = "Editors/SidePanelWidth";
constexpr int kFirstWidth = 220;
constexpr int kLeastWidth = 160;
constexpr int kMostWidth = 1200;

// As wide as it was left.
class Pages : public QTabWidget {
 public:
  Pages(int width, QWidget* parent) : QTabWidget(parent), width_(width) {}

  QSize sizeHint() const override { return {width_, minimumHeight()}; }
  // So that no page loses a word at its edge.
  QSize minimumSizeHint() const override {
    return {std::max(kLeastWidth, QTabWidget::minimumSizeHint().width()), 0};
  }

 private:
  int width_;
};

int StoredWidth() {
  const int stored = ZorikStore().value(kWidth, kFirstWidth).toInt();
  return std::clamp(stored, kLeastWidth, kMostWidth);
}

}  // namespace

SidePanel::SidePanel(QWidget& picture, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      pages_(new Pages(StoredWidth(), this)),
      wanted_(ZorikStore().value(kWanted, true).toBool()) {
  setObjectName("sidePanel");
  setChildrenCollapsible(false);
  pages_->setObjectName("pages");
  pages_->setDocumentMode(true);
  pages_->tabBar()->setFocusPolicy(Qt::TabFocus);
  pages_->hide();
  insertWidget(0, &picture);
  setStretchFactor(0, 1);
  setStretchFactor(1, 0);
}

void SidePanel::AddPage(QWidget& page, const char* key) {
  keys_.push_back(key);
  pages_->addTab(&page, QString());
  ShowPages();
}

void SidePanel::SetLW(const Skin& skin) {
  for (std::size_t i = 0; i < keys_.size(); ++i)
    pages_->setTabText(static_cast<int>(i), InMenu(skin.Caption(keys_[i])));
}

void SidePanel::TurnTo(QWidget& page) {
  pages_->setCurrentWidget(&page);
}

void SidePanel::SetWanted(bool wanted) {
  wanted_ = wanted;
  ZorikStore().setValue(kWanted, wanted);
  ShowPages();
}

// At once with the handle beside them, so that the window knows its least width before it shows.
void SidePanel::ShowPages() {
  pages_->setVisible(wanted_ && pages_->count() > 0);
  refresh();
}

void SidePanel::hideEvent(QHideEvent* event) {
  if (pages_->isVisibleTo(this)) ZorikStore().setValue(kWidth, pages_->width());
  QSplitter::hideEvent(event);
}

}  // namespace zorik
