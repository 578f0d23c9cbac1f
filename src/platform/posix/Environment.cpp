#include "platform/FileSystem.h"

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <langinfo.h>
#include <pwd.h>
#include <unistd.h>

namespace tarnwick::platform {

namespace {

struct Category {
  const char* variable;
  int mask;
};

/// All but the character set, which has rules of its own.
constexpr Category categories[] = {
    {"LC_NUMERIC", LC_NUMERIC_MASK},
    {"LC_TIME", LC_TIME_MASK},
    {"LC_COLLATE", LC_COLLATE_MASK},
    {"LC_MONETARY", LC_MONETARY_MASK},
    {"LC_MESSAGES", LC_MESSAGES_MASK},
    {"LC_PAPER", LC_PAPER_MASK},
    {"LC_NAME", LC_NAME_MASK},
    {"LC_ADDRESS", LC_ADDRESS_MASK},
    {"LC_TELEPHONE", LC_TELEPHONE_MASK},
    {"LC_MEASUREMENT", LC_MEASUREMENT_MASK},
    {"LC_IDENTIFICATION", LC_IDENTIFICATION_MASK},
};

/// LC_ALL overrides every category: it is dealt out to the others, so that one of them can differ.
void dealOutLocale() {
  const auto all = environment("LC_ALL");
  if (!all) return;
  if (!all->empty()) {
    for (const Category& category : categories) ::setenv(category.variable, all->c_str(), 1);
  }
  ::unsetenv("LC_ALL");
}

bool isInstalled(int categoryMask) {
  const locale_t locale = ::newlocale(categoryMask, "", nullptr);
  if (!locale) return false;
  ::freelocale(locale);
  return true;
}

/// Where one category names a locale that is not installed, Java's tools take the C locale for all of them, the
/// character set included.
void replaceMissingLocales() {
  if (isInstalled(LC_ALL_MASK)) return;
  dealOutLocale();
  for (const Category& category : categories) {
    if (!isInstalled(category.mask)) ::setenv(category.variable, "C", 1);
  }
}

bool speaksUtf8() {
  return std::strcmp(::nl_langinfo(CODESET), "UTF-8") == 0;
}

}  // namespace

std::optional<std::string> environment(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (!value) return std::nullopt;
  return value;
}

bool setEnvironment(const std::string& definition) {
  const auto equals = definition.find('=');
  if (equals == std::string::npos || equals == 0) return false;
  const std::string name = definition.substr(0, equals);
  const std::string value = definition.substr(equals + 1);
  return (value.empty() ? ::unsetenv(name.c_str()) : ::setenv(name.c_str(), value.c_str(), 1)) == 0;
}

std::string executablePath() {
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/self/exe", ignored).string();
}

std::string defaultConfigDirectory(const std::string&) {
  const auto xdg = environment("XDG_CONFIG_HOME");
  // A relative path is invalid there and is to be ignored.
  const bool usable = xdg && xdg->starts_with('/');
  const std::string base = usable ? *xdg : homeFolder() + "/.config";
  return base + (base.ends_with('/') ? "tarnwick/" : "/tarnwick/");
}

std::string homeFolder() {
  const auto home = environment("HOME");
  if (home && !home->empty()) return *home;
  const passwd* user = ::getpwuid(::getuid());
  return user && user->pw_dir ? user->pw_dir : "/";
}

int processId() {
  return ::getpid();
}

void prepareProcess() {
  replaceMissingLocales();
  std::setlocale(LC_CTYPE, "");
  if (!speaksUtf8()) {
    // Texts inside are UTF-8, and Java's tools write and read file names in the locale's set.
    dealOutLocale();
    ::setenv("LC_CTYPE", "C.UTF-8", 1);
    std::setlocale(LC_CTYPE, "C.UTF-8");
  }
  // A write to a child that has gone shall fail, not end the program.
  std::signal(SIGPIPE, SIG_IGN);
  // So shall one that goes beyond what the system lets a file grow to.
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace tarnwick::platform
