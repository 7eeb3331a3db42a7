#include "platform/Shell.h"

#include <unistd.h>

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <filesystem>
#include <string>
#include <system_error>

#include "data/Cp1250.h"
#include "data/Files.h"
#include "platform/PathText.h"

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

// A link holds all bytes of a path.
QUrl LinkTo(const std::string& path) {
  return QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"));
}

// What the opener is told: an argument can only be UTF-8.
QString TargetOf(const QUrl& url, const std::string& path) {
  return !path.empty() && IsUtf8(path) ? QString::fromStdString(path) : QString::fromUtf8(url.toEncoded());
}

void Open(const QUrl& url, const std::string& path, const OpenFailed& failed) {
  const QString opener = QStandardPaths::findExecutable("xdg-open");
  if (!opener.isEmpty()) {
    RunOpener(opener, TargetOf(url, path), failed);
  } else if (!QDesktopServices::openUrl(url)) {
    failed();
  }
}

}  // namespace

void OpenFile(const QString& path, const OpenFailed& failed) {
  std::error_code error;
  const std::string file = std::filesystem::absolute(PathBytes(path), error).lexically_normal().string();
  if (error || !IsReadableFile(file)) return failed();
  Open(LinkTo(file), file, failed);
}

void OpenLink(const QUrl& link, const OpenFailed& failed) {
  if (!link.isValid() || link.scheme().isEmpty()) return failed();
  Open(link, link.toLocalFile().toStdString(), failed);
}

QUrl MailLink(const QString& address, const QString& subject) {
  return QUrl::fromEncoded("mailto:" + QUrl::toPercentEncoding(address, "@") +
                           "?subject=" + QUrl::toPercentEncoding(subject));
}

}  // namespace zorik
