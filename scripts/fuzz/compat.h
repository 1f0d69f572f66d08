// Forced into every file of the fuzz build. clang 14 lacks the builtin that
// libstdc++ 12 needs for <source_location>; this stand-in gives the same
// interface from the older builtins. g++ builds never see it.
#pragma once
#include <version>
#if !defined(__cpp_lib_source_location)
#include <cstdint>
namespace std {
struct source_location {
  static consteval source_location current(const char *file = __builtin_FILE(),
                                           const char *func = __builtin_FUNCTION(),
                                           std::uint_least32_t line = __builtin_LINE(),
                                           std::uint_least32_t column = __builtin_COLUMN()) noexcept {
    source_location s;
    s.file_ = file;
    s.func_ = func;
    s.line_ = line;
    s.column_ = column;
    return s;
  }
  constexpr source_location() noexcept = default;
  constexpr std::uint_least32_t line() const noexcept { return line_; }
  constexpr std::uint_least32_t column() const noexcept { return column_; }
  constexpr const char *file_name() const noexcept { return file_; }
  constexpr const char *function_name() const noexcept { return func_; }

 private:
  const char *file_ = "";
  const char *func_ = "";
  std::uint_least32_t line_ = 0;
  std::uint_least32_t column_ = 0;
};
}  // namespace std
#endif
