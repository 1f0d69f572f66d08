// The version texts of the tool.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "driver/driver.h"
#include "driver/driver_run.h"

namespace {

std::string capture(void (*print)(FILE *)) {
  FILE *f = tmpfile();
  print(f);
  std::string text;
  rewind(f);
  for (int c; (c = fgetc(f)) != EOF;) text += static_cast<char>(c);
  fclose(f);
  return text;
}

}  // namespace

TEST(DriverVersion, Texts) {
  EXPECT_STREQ(tool_name(), "Assembler");
  EXPECT_STREQ(version_number(), "5.1.0");
  EXPECT_STREQ(version_short(), "v5.1.0");
  EXPECT_STREQ(version_full(), "v5.1.0.LTS");
  EXPECT_EQ(version_major() * 1000000 + version_minor() * 1000 + version_patch(), 5001000u);
  const std::string isa = isa_and_tool_name();
  ASSERT_GT(isa.size(), 10u);
  EXPECT_EQ(isa.substr(isa.size() - 10), " Assembler");
}

TEST(DriverVersion, ToolAndVersionLine) {
  const std::string line = capture(print_tool_and_version);
  std::string name = isa_and_tool_name();
  name.resize(40, ' ');  // padded, or cut, to 40 columns
  EXPECT_EQ(line, name + "v5.1.0.LTS\n");

  const std::string full = capture(print_toolversion);
  EXPECT_EQ(full.rfind(line, 0), 0u);
  EXPECT_NE(full.find("Build Number "), std::string::npos);
}
