#pragma once
// A fresh directory per test, the file helpers the end-to-end tests share, and
// one way to run the assembler in that directory.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "elf_reader.h"

inline std::string slurp(const std::filesystem::path &p) {
  std::ifstream in(p, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

inline void spit(const std::filesystem::path &p, std::string_view bytes) {
  std::ofstream(p, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Wrapped message bodies joined into one line.
inline std::string joined(std::string text) {
  for (size_t p = 0; (p = text.find("\n         ", p)) != std::string::npos;) {
    const size_t end = text.find_first_not_of(' ', p + 1);
    text.replace(p, end - p, " ");
  }
  return text;
}

// How often `needle` occurs in `text`, overlaps counted.
inline size_t occurrences(std::string_view text, std::string_view needle) {
  size_t n = 0;
  for (size_t p = text.find(needle); p != std::string_view::npos; p = text.find(needle, p + 1)) ++n;
  return n;
}

struct ZqRun {
  int status = -1;         // exit status, 128 + signal when killed
  std::string err;         // stderr as written
  long max_rss_kib = 0;    // peak memory of the run
};

class ZqDirFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto *info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string tmpl = (std::filesystem::temp_directory_path() /
                        (std::string("zq_") + info->test_suite_name() + "_" + info->name() + "_XXXXXX"))
                           .string();
    ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
    root_ = tmpl;
    dir_ = root_ / "w";
    std::filesystem::create_directory(dir_);
    std::filesystem::create_directory(root_ / "tmp");
  }
  void TearDown() override {
    // A test may leave its directory read-only.
    std::error_code ec;
    std::filesystem::permissions(dir_, std::filesystem::perms::owner_all, ec);
    std::filesystem::remove_all(root_, ec);
  }

  std::filesystem::path path(const std::string &name) const { return dir_ / name; }
  void put(const std::string &name, std::string_view bytes) const { spit(path(name), bytes); }
  std::string get(const std::string &name) const { return slurp(path(name)); }
  bool has(const std::string &name) const { return std::filesystem::exists(std::filesystem::symlink_status(path(name))); }
  std::set<std::string> files() const {
    std::set<std::string> names;
    for (const auto &e : std::filesystem::directory_iterator(dir_)) names.insert(e.path().filename().string());
    return names;
  }

  // Runs a shell command line in the test directory; ZQ stands for the
  // assembler. TMPDIR is a directory of the test's own, beside the test
  // directory; stdout is dropped. Nothing of the run itself lands in dir_.
  ZqRun sh(const std::string &cmd) {
    const std::string line = "exec >/dev/null 2>'" + (root_ / "err").string() + "' && cd '" + dir_.string() +
                             "' && ZQ='" + ZQ_ZQASM + "' TMPDIR='" + tmp_dir().string() +
                             "' && export TMPDIR && " + cmd;
    ZqRun r;
    const pid_t pid = fork();
    if (pid == 0) {
      execl("/bin/sh", "sh", "-c", line.c_str(), static_cast<char *>(nullptr));
      _exit(127);
    }
    // The rusage of the shell covers the assembler it waited for.
    int raw = 0;
    struct rusage ru {};
    pid_t done = -1;
    if (pid > 0)
      do done = wait4(pid, &raw, 0, &ru);
      while (done < 0 && errno == EINTR);
    if (done == pid) {
      r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw);
      r.max_rss_kib = ru.ru_maxrss;
    }
    r.err = slurp(root_ / "err");
    return r;
  }
  ZqRun zq(const std::string &args) { return sh("\"$ZQ\" " + args); }

  // The .text bytes of an object as ElfFile::hex_bytes spells them.
  std::string text_of(const std::string &obj) const {
    ElfFile elf;
    std::string why;
    if (!elf.load(get(obj), why)) return "no object: " + why;
    const ElfSection *s = elf.section(".text");
    return s ? elf.hex_bytes(*s) : "no .text";
  }

  std::filesystem::path tmp_dir() const { return root_ / "tmp"; }

  std::filesystem::path root_, dir_;
};
