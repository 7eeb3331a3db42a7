#include "platform/Shell.h"

#include <unistd.h>

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace zorik {
namespace {

// The desktop's own opener tells by its exit code whether a program was found. Where it has to be that
// program's parent it lives on, longer than the game if need be.
void RunOpener(const QString& opener, const QString& target, const OpenFailed& failed) {
  auto* const process = new QProcess;
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->setChildProcessModifier([] { setsid(); });
  QObject::connect(process, &QProcess::finished, process, [process, failed](int code, auto status) {
    process->deleteLater();
    if (code != 0 || status != QProcess::NormalExit) failed();
  });
  QObject::connect(process, &QProcess::errorOccurred, process, [process, failed](auto error) {
    if (error != QProcess::FailedToStart) return;
    process->deleteLater();
    failed();
  });
  process->start(opener, {target});
}

void Open(const QUrl& url, const OpenFailed& failed) {
  const QString opener = QStandardPaths::findExecutable("xdg-open");
  if (!opener.isEmpty()) {
    RunOpener(opener, url.isLocalFile() ? url.toLocalFile() : QString::fromUtf8(url.toEncoded()), failed);
  } else if (!QDesktopServices::openUrl(url)) {
    failed();
  }
}

}  // namespace

void OpenFile(const QString& path, const OpenFailed& failed) {
  const QFileInfo file(path);
  if (!file.exists()) return failed();
  Open(QUrl::fromLocalFile(file.absoluteFilePath()), failed);
}

void OpenLink(const QUrl& link, const OpenFailed& failed) {
  if (!link.isValid() || link.scheme().isEmpty()) return failed();
  Open(link, failed);
}

QUrl MailLink(const QString& address, const QString& subject) {
  return QUrl::fromEncoded("mailto:" + QUrl::toPercentEncoding(address, "@") +
                           "?subject=" + QUrl::toPercentEncoding(subject));
}

}  // namespace zorik
