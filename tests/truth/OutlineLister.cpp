// The outlines of Java sources as OutlineTruth.java writes them: outline_lister LIST, with the name of a source in each
// line of the list.
#include "source/OutlineReader.h"
#include "support/source/OutlineText.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream list(argv[1]);
  for (std::string path; std::getline(list, path);) {
    std::ifstream file(path, std::ios::binary);
    const std::string source((std::istreambuf_iterator<char>(file)), {});
    const std::string name = std::filesystem::path(path).stem().string();
    std::printf("file %s\n", path.c_str());
    std::fputs(tarnwick::test::outlineText(tarnwick::outlineOf(source, name)).c_str(), stdout);
  }
  return 0;
}
