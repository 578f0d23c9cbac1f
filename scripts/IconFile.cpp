// Writes the program's picture as a Windows icon file to standard output. Run by scripts/make-icon.sh.
#include "ui/IconPixels.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace {

std::string number(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
  return text;
}

/// A picture as icon files hold it: a bitmap header, the pixels from the lowest row up, and an empty mask.
std::string bitmapOf(int side) {
  const auto pixels = tarnwick::ui::iconPixels(side);
  const auto width = static_cast<std::uint32_t>(side);
  std::string bitmap = number(40, 4) + number(width, 4) + number(2 * width, 4) + number(1, 2) + number(32, 2);
  bitmap.append(24, '\0');
  for (int row = side - 1; row >= 0; --row) {
    for (int column = 0; column < side; ++column) {
      const auto at = static_cast<std::size_t>(row * side + column) * 4;
      for (const std::size_t part : {2, 1, 0, 3}) bitmap += static_cast<char>(pixels[at + part]);
    }
  }
  bitmap.append((width + 31) / 32 * 4 * width, '\0');
  return bitmap;
}

}  // namespace

int main() {
  const std::vector<int> sides = {16, 24, 32, 48, 64};
  std::string directory = number(0, 2) + number(1, 2) + number(static_cast<std::uint32_t>(sides.size()), 2);
  std::string pictures;
  for (const int side : sides) {
    const std::string bitmap = bitmapOf(side);
    const auto offset = 6 + 16 * sides.size() + pictures.size();
    directory += number(static_cast<std::uint32_t>(side), 1) + number(static_cast<std::uint32_t>(side), 1) +
                 number(0, 2) + number(1, 2) + number(32, 2) + number(static_cast<std::uint32_t>(bitmap.size()), 4) +
                 number(static_cast<std::uint32_t>(offset), 4);
    pictures += bitmap;
  }
  const std::string file = directory + pictures;
  return std::fwrite(file.data(), 1, file.size(), stdout) == file.size() ? 0 : 1;
}
