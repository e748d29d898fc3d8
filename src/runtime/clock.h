#pragma once
// The calendar time of a moment, as the platform's thread-safe calls give it:
// batch saves ask for it from several threads at once.

#include <ctime>

namespace lp {

inline std::tm LocalTime(std::time_t t) {
  std::tm out{};
#ifdef _WIN32
  localtime_s(&out, &t);
#else
  localtime_r(&t, &out);
#endif
  return out;
}

inline std::tm UtcTime(std::time_t t) {
  std::tm out{};
#ifdef _WIN32
  gmtime_s(&out, &t);
#else
  gmtime_r(&t, &out);
#endif
  return out;
}

}  // namespace lp
