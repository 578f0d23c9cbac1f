// What becomes of many Java sources: report LIST [compare]. LIST names one file in each line. Prints how many
// end in which message; with "compare" also which are read otherwise than by the plain rules.
#include "support/source/PlainOutline.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <string_view>

int main(int argc, char** argv) {
  using namespace tarnwick::test;
  if (argc < 2) {
    std::fprintf(stderr, "report LIST [compare]\n");
    return 2;
  }
  const bool compares = argc > 2 && std::string_view(argv[2]) == "compare";
  std::ifstream list(argv[1]);
  std::map<std::string, int> counts;
  int files = 0;
  int different = 0;
  for (std::string path; std::getline(list, path); ++files) {
    ++counts[messageOf(path)];
    if (!compares || outlineOf(path) == plainOutlineOf(path)) continue;
    std::printf("read otherwise: %s\n", path.c_str());
    ++different;
  }
  std::printf("%d files\n", files);
  for (const auto& [message, count] : counts)
    std::printf("%6d  %s\n", count, message.empty() ? "(no failure)" : message.c_str());
  if (compares) std::printf("%d read otherwise than by the plain rules\n", different);
  return different == 0 ? 0 : 1;
}
