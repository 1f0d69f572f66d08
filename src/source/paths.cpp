// Finding copied files: the search path and the directory lists of the environment.
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/driver.h"
#include "driver/output_files.h"
#include "source/copy.h"
#include "source/input_files.h"
#include "support/fhm.h"

namespace {
std::string found_dir;
}

const char *env_ptr = "";

FHM_FILE *search_dirs(const char *name, const char *mode) {
  found_dir.clear();
  env_ptr = found_dir.c_str();
  if (!name || !*name) return nullptr;

  auto opened = [&](const std::string &path) -> FHM_FILE * {
    // Text read in both passes must be a regular file: a directory or a
    // device is passed over like a file that is not there.
    FHM_FILE *f = std::strcmp(mode, "rb") == 0 ? SRC_open_copy(path.c_str()) : fhm_open(path.c_str(), mode);
    if (!f) return nullptr;
    OUT_check_input(path.c_str());
    const char *dir = nullptr;
    fn_split(path.c_str(), &dir, nullptr, nullptr);
    found_dir = dir ? dir : "";
    env_ptr = found_dir.c_str();
    return f;
  };

  if (fn_hasdir(name))
    if (FHM_FILE *f = opened(name)) return f;
  for (const std::string &dir : paths) {
    char *joined = fn_build(nullptr, dir.c_str(), name, "");
    const std::string path = joined;
    std::free(joined);
    if (FHM_FILE *f = opened(path)) return f;
  }
  return nullptr;
}

void extract_paths(const char *name, const std::function<void(const char *)> &cb) {
  if (!name) return;
  const char *value = nullptr;
  for (const char *prefix : {"ZQ_ARM_", "KRV616_", ""}) {
    value = std::getenv((std::string(prefix) + name).c_str());
    if (value) break;
  }
  if (!value) return;
  const std::string list = value;
  size_t pos = 0;
  while (pos <= list.size()) {
    size_t end = list.find(';', pos);
    if (end == std::string::npos) end = list.size();
    size_t a = pos, b = end;
    while (a < b && std::isspace(static_cast<unsigned char>(list[a]))) ++a;
    while (b > a && std::isspace(static_cast<unsigned char>(list[b - 1]))) --b;
    if (b > a) cb(list.substr(a, b - a).c_str());
    pos = end + 1;
  }
}
