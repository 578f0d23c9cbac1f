#pragma once

#include <ctime>
#include <gtest/gtest.h>
#include <string>
#include <utime.h>

namespace tarnwick::test {

/// Gives a file the time of its last change.
inline void setFileTime(const std::string& path, std::time_t time) {
  utimbuf times{};
  times.actime = times.modtime = time;
  ASSERT_EQ(utime(path.c_str(), &times), 0) << path;
}

}  // namespace tarnwick::test
