#include "data/MailFile.h"

#include <filesystem>
#include <system_error>

#include "data/Files.h"
#include "data/Lines.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLongestLine = 73;  // characters of a record's line that stay together

constexpr std::string_view kHead =
    "Subject: Zor\xEDk\r\n"
    "Content-Type: multipart/mixed;  boundary = \"----=NP\"\r\n"
    "X-Unsent: 1\r\n"
    "\r\n"
    "This is a multi-part message in MIME format.\r\n";

bool IsPlain(int code) {
  return (code >= 33 && code <= 90) || (code >= 97 && code <= 122) || code == '-';
}

std::string Hexadecimal(int code) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  if (code >= 16) digits += kDigits[static_cast<std::size_t>(code / 16)];
  digits += kDigits[static_cast<std::size_t>(code % 16)];
  return digits;
}

// A line that is too long gives a piece for each full length, so that the last one may be empty.
void AppendFolded(std::string& mail, std::string_view line) {
  const bool tooLong = line.size() > kLongestLine;
  while (tooLong && line.size() >= kLongestLine) {
    mail += line.substr(0, kLongestLine);
    mail += '=';
    mail += kLineEnd;
    line.remove_prefix(kLongestLine);
  }
  mail += line;
  mail += kLineEnd;
}

void AppendPart(std::string& mail, const std::string& name, std::string bytes) {
  const std::string word = URLEncode(name);
  mail += "\r\n------=NP\r\n";
  mail += "Content-Type: application/octet-stream; name=\"" + word + "\"\r\n";
  mail += "Content-Disposition: attachment; filename=\"" + word + "\"\r\n";
  mail += kLineEnd;
  RecordLines lines(std::move(bytes));
  while (!lines.AtEnd()) AppendFolded(mail, lines.Next());
}

}  // namespace

std::string URLEncode(std::string_view text) {
  std::string word = "=?iso-8859-2?Q?";
  for (const char character : text) {
    const int code = static_cast<unsigned char>(character);
    if (IsPlain(code)) {
      word += character;
    } else if (character == ' ') {
      word += '_';
    } else {
      word += '=' + Hexadecimal(code);
    }
  }
  return word + "?=";
}

std::string BuildMail(const PlayedCollection& collection, const RecordSource& records) {
  std::string mail(kHead);
  for (const PlayedCave& cave : collection.Caves) {
    const std::string name = RecordFileName(collection.Name, cave.Record.Name);
    if (std::optional<std::string> bytes = records(name)) AppendPart(mail, name, std::move(*bytes));
  }
  return mail;
}

Result<std::string> WriteMail(const PlayedCollection& collection, const std::string& playerFolder) {
  std::error_code error;
  std::filesystem::create_directories(playerFolder, error);
  const std::string path = ResolvePath(playerFolder + "/temp.eml");
  const Result<Done> written = WriteWhole(path, BuildMail(collection, RecordsInFolder(playerFolder)));
  if (!written) return Failure{written.Message()};
  return path;
}

}  // namespace zorik
