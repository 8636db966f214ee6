#include "kit/BitmapFont.h"

#include <algorithm>
#include <cstddef>

namespace zub::controls {

namespace {

constexpr int Rows = 9, FirstRow = 3, UnderlineRow = 11;
constexpr int Gap = 1, BlankWidth = 3;

// Letters side by side, a blank between two of them. Where none of them has a tail, the last rows are left out.
struct Band {
  std::string_view letters;
  std::string_view rows[Rows];
};

// clang-format off
constexpr Band Bands[] = {
    {"CEGIS-0123456789",
     {
     ".###. #### .###. # .### ... .##. .#. .##. .##. ..#. #### .##. #### .##. .##.",
     "#...# #... #...# # #... ... #..# ##. #..# #..# .##. #... #... ...# #..# #..#",
     "#.... #... #.... # #... ... #..# .#. ...# ...# #.#. ###. #... ...# #..# #..#",
     "#.... ###. #.### # .##. ### #..# .#. ..#. .##. #.#. ...# ###. ..#. .##. .###",
     "#.... #... #...# # ...# ... #..# .#. .#.. ...# #### ...# #..# ..#. #..# ...#",
     "#...# #... #...# # ...# ... #..# .#. #... #..# ..#. #..# #..# .#.. #..# ...#",
     ".###. #### .###. # ###. ... .##. ### #### .##. ..#. .##. .##. .#.. .##. .##.",
     }},
    {"abcdefghijklm",
     {
     ".... #... ... ...# .... .## .... #... # .# #... # .....",
     ".... #... ... ...# .... #.. .... #... . .. #... # .....",
     ".##. ###. .## .### .##. ##. .### ###. # .# #..# # ##.#.",
     "...# #..# #.. #..# #..# #.. #..# #..# # .# #.#. # #.#.#",
     ".### #..# #.. #..# #### #.. #..# #..# # .# ##.. # #.#.#",
     "#..# #..# #.. #..# #... #.. #..# #..# # .# #.#. # #.#.#",
     ".### ###. .## .### .##. #.. .### #..# # .# #..# # #.#.#",
     ".... .... ... .... .... ... ...# .... . .# .... . .....",
     ".... .... ... .... .... ... .##. .... . #. .... . .....",
     }},
    {"nopqrstuvwxyz",
     {
     ".... .... .... .... ... ... .#. .... ... ..... ... .... ....",
     ".... .... .... .... ... ... .#. .... ... ..... ... .... ....",
     "###. .##. ###. .### #.# .## ### #..# #.# #...# #.# #..# ####",
     "#..# #..# #..# #..# ##. #.. .#. #..# #.# #.#.# #.# #..# ...#",
     "#..# #..# #..# #..# #.. .#. .#. #..# #.# #.#.# .#. #..# .##.",
     "#..# #..# #..# #..# #.. ..# .#. #..# #.# #.#.# #.# #..# #...",
     "#..# .##. ###. .### #.. ##. ..# .### .#. .#.#. #.# .### ####",
     ".... .... #... ...# ... ... ... .... ... ..... ... ...# ....",
     ".... .... #... ...# ... ... ... .... ... ..... ... .##. ....",
     }},
};
// clang-format on

struct Glyph {
  const Band* band = nullptr;  // none: a blank, as is every letter that the font lacks
  std::size_t left = 0;
  int width = BlankWidth;
};

Glyph glyphOf(char letter) {
  for (const Band& band : Bands) {
    const std::size_t place = band.letters.find(letter);
    if (place == std::string_view::npos) continue;
    const std::string_view row = band.rows[0];
    std::size_t left = 0;
    for (std::size_t i = 0; i < place; ++i) left = row.find(' ', left) + 1;
    return {&band, left, static_cast<int>(std::min(row.find(' ', left), row.size()) - left)};
  }
  return {};
}

int advance(const Glyph& glyph, const Font& font) {
  return glyph.width + Gap + (font.Bold ? 1 : 0);
}

}  // namespace

Size BitmapFont::measure(std::string_view text, const Font& font) {
  Size size = {0, LineHeight};
  for (const char letter : text) size.width += advance(glyphOf(letter), font);
  return size;
}

void BitmapFont::draw(Surface& surface, Point at, std::string_view text, int underlined, const Font& font,
                      Color color) {
  const int thickness = font.Bold ? 2 : 1;
  int x = at.x;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Glyph glyph = glyphOf(text[i]);
    for (int row = 0; glyph.band && row < Rows && !glyph.band->rows[row].empty(); ++row)
      for (int column = 0; column < glyph.width; ++column)
        if (glyph.band->rows[row][glyph.left + static_cast<std::size_t>(column)] == '#')
          surface.fill({x + column, at.y + FirstRow + row, thickness, 1}, color);
    if (static_cast<int>(i) == underlined) surface.fill({x, at.y + UnderlineRow, glyph.width, 1}, color);
    x += advance(glyph, font);
  }
}

}  // namespace zub::controls
