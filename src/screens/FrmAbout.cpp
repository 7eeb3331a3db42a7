#include "screens/FrmAbout.h"

#include <QLabel>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "screens/DesktopServices.h"
#include "screens/PlainText.h"
#include "screens/ShowText.h"
#include "screens/SkinButton.h"
#include "screens/StartWords.h"
#include "screens/Tones.h"
#include "skin/GameFont.h"
#include "skin/Skin.h"

namespace zorik {
namespace {

constexpr int kLetters = 16;
constexpr int kMargin = 24;
constexpr int kGap = 16;
constexpr int kLineWidth = 560;
constexpr int kMostLines = 20;
constexpr const char* kPageLink = "page";  // its path may hold what a link cannot

// As many lines of a text as a screen has room for.
QString InRoom(const QString& text, const QFont& letters) {
  return WrapText(InLines(text), QFontMetrics(letters), kLineWidth, kMostLines).lines.join('\n');
}

QString LinkTo(const QString& target, const QString& words, QColor colour) {
  return "<a href=\"" + target + "\" style=\"color:" + colour.name() + "\">" + words + "</a>";
}

// A text as rich text in which pages and addresses can be clicked.
QString WithLinks(const QString& text, QColor colour) {
  static const QRegularExpression link(R"((https?://[^\s<>"]*[^\s<>".,;:!?)])|([\w.+-]+@[\w-]+(\.[\w-]+)+))");
  QString rich;
  qsizetype end = 0;
  for (auto matches = link.globalMatch(text); matches.hasNext();) {
    const auto match = matches.next();
    const QString words = match.captured().toHtmlEscaped();
    rich += text.mid(end, match.capturedStart() - end).toHtmlEscaped();
    rich += LinkTo(match.captured(1).isEmpty() ? "mailto:" + words : words, words, colour);
    end = match.capturedEnd();
  }
  rich += text.mid(end).toHtmlEscaped();
  return rich.replace('\n', "<br>");
}

}  // namespace

FrmAbout::FrmAbout(Skin& skin, const Paths& paths, QWidget* parent)
    : SkinDialog(parent),
      skin_(skin),
      page_(HelpPage(paths, skin, "oprogramu.html")),
      lblText_(NewLabel(this)),
      ok_(new SkinButton(this)) {
  lblText_->setObjectName("lblText");
  lblText_->setTextFormat(Qt::RichText);
  lblText_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  lblText_->setAlignment(Qt::AlignCenter);
  connect(lblText_, &QLabel::linkActivated, this, [this](const QString& link) {
    if (link == kPageLink) return OpenFileOrTell(skin_, this, page_);
    OpenLinkOrTell(skin_, this, QUrl(link));
  });
  connect(ok_, &SkinButton::clicked, this, &FrmAbout::OnEnter);
  LayOut();
  SkinIt();
}

void FrmAbout::LayOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(lblText_);
  rows->addWidget(ok_, 0, Qt::AlignHCenter);
}

void FrmAbout::SkinIt() {
  const Tones tones = TonesOf(skin_.Colour("dialog.color", kPlainGround));
  Surface().SetColour(tones.ground);
  setPalette(PaletteOf(tones));
  setFont(GameFont(kLetters));
  SetTitle(*this, skin_.Text(TextId::Program));
  lblText_->setText(
      WithLinks(InRoom(skin_.Text(TextId::About), font()), tones.mark) + "<br><br>" +
      LinkTo(kPageLink, OneLine(kProgramWords.In(skin_), kMostInCaption).toHtmlEscaped(), tones.mark));
  ok_->setObjectName("ok");
  ok_->SetPicture(skin_.Picture("dialog.ok.image"));
  ok_->SetWords(kOkWords.In(skin_));
  adjustSize();
}

}  // namespace zorik
