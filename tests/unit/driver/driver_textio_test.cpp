// Text input with uniform line ends.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "driver/driver.h"
#include "support/fhm.h"

namespace {

struct TextFile {
  std::string name;
  FHM_FILE *f = nullptr;
  explicit TextFile(const std::string &bytes) {
    char tmpl[] = "/tmp/zq_textio_XXXXXX";
    const int fd = mkstemp(tmpl);
    name = tmpl;
    FILE *out = fdopen(fd, "wb");
    fwrite(bytes.data(), 1, bytes.size(), out);
    fclose(out);
    f = fhm_open(name.c_str(), "rb");
  }
  ~TextFile() {
    fhm_close(f);
    remove(name.c_str());
  }
};

std::string all_chars(FHM_FILE *f) {
  std::string s;
  for (int c; (c = mygetc(f)) >= 0;) s += static_cast<char>(c);
  return s;
}

}  // namespace

TEST(DriverTextIO, LineEndsAndCtrlZ) {
  struct Case {
    std::string in, out;
  } cases[] = {
      {"a\r\nb\n", "a\nb\n"},
      {"a\rb\r", "a\nb\n"},
      {"a\r\r\nb", "a\n\nb"},
      {"ab\x1a", "ab"},
      {"\x1a" "a\x1a" "b\n", "ab\n"},
      {"", ""},
  };
  for (const Case &c : cases) {
    TextFile t(c.in);
    ASSERT_NE(t.f, nullptr);
    EXPECT_EQ(all_chars(t.f), c.out);
    EXPECT_EQ(mygetc(t.f), -1);
  }
}

TEST(DriverTextIO, FgetsPieces) {
  TextFile t("abcdef\r\ngh");
  char buf[5];
  std::string pieces;
  while (myfgets(buf, sizeof buf, t.f)) pieces += std::string("[") + buf + "]";
  EXPECT_EQ(pieces, "[abcd][ef\n][gh]");
  EXPECT_EQ(myfgets(buf, sizeof buf, t.f), nullptr);
}
