#pragma once

#include <QString>
#include <QUrl>
#include <functional>

namespace zorik {

// Told when the desktop has no program that takes what was to be opened; that may be a while later.
using OpenFailed = std::function<void()>;

// Opens a file with the program that the desktop has for its kind. A file that is not there fails at once.
void OpenFile(const QString& path, const OpenFailed& failed);

// Opens a page or a letter, likewise.
void OpenLink(const QUrl& link, const OpenFailed& failed);

// The link that begins a letter.
QUrl MailLink(const QString& address, const QString& subject);

}  // namespace zorik
