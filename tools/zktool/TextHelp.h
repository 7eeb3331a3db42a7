#pragma once

#include <string_view>

namespace zorik {

// The help of the commands that deal with single texts.

inline constexpr std::string_view kUnpackDetails =
    R"(The folder is made if it is not there. It gets collection.txt and a file for each cave, in UTF-8, which can
be edited and packed again. The caves' files are named by their numbers, cave-01.txt and so on, whatever they
were called when the collection was packed; so the folder has to be empty.

  --force  unpack into a folder that is not empty, too: files of the same names are replaced, but only when
           all could be written; others stay

Any file will do: pack gives the same plain lines again.
)";

inline constexpr std::string_view kFetchDetails =
    R"(Prints the plain cave text whose marker holds the number N (0 to 99), marker included, as it is handed to
the game: bytes in Windows-1250, without a line end.
)";

inline constexpr std::string_view kNewDetails =
    R"(Prints the plain text of a cave of dirt, 19 x 11 or 30 x 20 cells, without a line end.
)";

inline constexpr std::string_view kScrambleDetails =
    R"(A line ends at a line feed; a carriage return right in front of it belongs to the line end, and a last line
may lack its end. Line ends are copied as they are, everything between them is scrambled, byte by byte. So
unscramble gives back whatever bytes have been scrambled. The letters differ from call to call.

  --seed N   start of the chance that chooses the letters; the same seed gives the same ones
)";

inline constexpr std::string_view kUnscrambleDetails =
    R"(Lines are those of scramble: they end at a line feed, with a carriage return right in front of it if there
is one, and their ends are copied as they are. A scrambled line may itself hold line breaks, which come out as
such and are then no longer to be told from the ends of lines; to edit collections use unpack and pack. Text
that is not scrambled gives rubbish, never a failure.
)";

}  // namespace zorik
