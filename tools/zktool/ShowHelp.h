#pragma once

#include <string_view>

namespace zorik {

// The help of the commands that show caves and runs.

inline constexpr std::string_view kRenderDetails =
    R"(CAVE is a collection, a folder of readable texts with its collection.txt, one readable cave, or a plain cave
text (zktool fetch). The picture shows the whole cave in the looks of the Default skin, as it begins.

  -o OUT.png  the picture
  --tick N    after N ticks: of a record, or of a cave in which nobody holds a key. Behind its end a record stays
              as it ended
  --cave N    the cave of this number, where a collection holds more than one
  --scheme S  Classic, Cold, Hot, Natural or Mystery, in place of the cave's own colours
  --cell PX   pixels from one cell to the next, 1 to 80, 32 if not given

zkpaint, which comes with the game, makes the pictures. It needs no display. Where it is not beside zktool the
command fails and says so.
)";

inline constexpr std::string_view kMovieDetails =
    R"(The movie has a picture for each tick, and one of the start; it goes at the speed at which play begins, seven
ticks a second. It ends where the record is over, won or restarted by an empty line. What stands behind the last
point of OUT says what is made: a GIF and a WebP begin again and again, an MP4 (H.264) plays once.

  -o OUT      the movie
  --follow    what a player sees: the view that follows the dog, in place of the whole cave
  --scheme S  Classic, Cold, Hot, Natural or Mystery, in place of the cave's own colours
  --cell PX   pixels from one cell to the next, 1 to 80, 16 if not given

Besides zkpaint (zktool render --help) it takes the program ffmpeg, with its encoders gif, libwebp and libx264, as
Debian's package ffmpeg has it. Where they are not there the command fails and says so.
)";

inline constexpr std::string_view kPostcardDetails =
    R"(Packs the record into a word of capital letters, digits and + - . / : and draws it as a QR code. The word holds
all that the record holds, so who reads it back can play the run and verify it.

  -o OUT.png     the picture; without it the word itself is printed, to be sent in a letter
  --read         the way back: in place of the record stands the word, or a file that holds it, and OUT is the
                 record. Blanks and line ends within the word count for nothing

A picture holds a word of 4296 letters, which is a run of a few minutes; a longer one is a failure. To read one:
  zbarimg --quiet --raw card.png | zktool postcard --read /dev/stdin -o run.zkr

A zktool that was built without zlib and libqrencode says that it knows no postcards.
)";

}  // namespace zorik
