// The tool's name, its version texts and the notice that asks for defect reports.
#include <cstdio>

#include "driver/driver.h"
#include "driver/driver_run.h"

namespace {

constexpr unsigned VERSION_MAJOR = 5;
constexpr unsigned VERSION_MINOR = 1;
constexpr unsigned VERSION_PATCH = 0;
constexpr int VERSION_DIGIT4 = -1;  // no fourth digit in this release
constexpr const char TOOLSET_NAME[] = "ZQ ARM Code Generation Tools";

}  // namespace

const char *tool_name() { return "Assembler"; }
unsigned version_major() { return VERSION_MAJOR; }
unsigned version_minor() { return VERSION_MINOR; }
unsigned version_patch() { return VERSION_PATCH; }

const char *version_number() {
  static char text[48];
  if (!text[0]) {
    if (VERSION_DIGIT4 >= 0)
      snprintf(text, sizeof text, "%u.%u.%u.%d", VERSION_MAJOR, VERSION_MINOR, VERSION_PATCH,
               VERSION_DIGIT4);
    else
      snprintf(text, sizeof text, "%u.%u.%u", VERSION_MAJOR, VERSION_MINOR, VERSION_PATCH);
  }
  return text;
}

const char *version_short() {
  static char text[64];
  if (!text[0]) snprintf(text, sizeof text, "v%s", version_number());
  return text;
}

const char *version_full() {
  static char text[80];
  if (!text[0]) snprintf(text, sizeof text, "%s.LTS", version_short());
  return text;
}

const char *isa_and_tool_name() {
  static char text[128];
  if (!text[0]) snprintf(text, sizeof text, "%s %s", TOOLSET_NAME, tool_name());
  return text;
}

void print_tool_and_version(FILE *stream) {
  fprintf(stream, "%-*.*s%s\n", 40, 40, isa_and_tool_name(), version_full());
}

void print_toolversion(FILE *stream) {
  print_tool_and_version(stream);
  buildid(stream, "Build Number ");
}

void buildid(FILE *stream, const char *prefix) {
  // One line for the assembler and the two engines linked into it.
  static constexpr const char *modules[] = {"ASM", "OFE", "DWE"};
  for (const char *m : modules)
    fprintf(stream, "%s%s-%s\n", prefix, m, version_number());
}

const char *support_notice() {
  return "This is a defect in the assembler. Please report it to your tool supplier,\n"
         "and enclose the command line, the source file and every file it copies or includes.\n";
}
