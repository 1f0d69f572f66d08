// Every file of the encoding corpus under tests/golden assembles to the bytes
// written beside its lines; one test per file. A file marked "; XFAIL: reason"
// has its findings printed and is skipped instead of failed.
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

#include "golden_corpus.h"
#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

fs::path golden_root() { return fs::path(ZQ_SOURCE_DIR) / "tests" / "golden"; }

std::vector<fs::path> corpus_files() {
  std::vector<fs::path> out;
  if (!fs::exists(golden_root())) return out;
  for (const auto &e : fs::recursive_directory_iterator(golden_root()))
    if (e.is_regular_file() && e.path().extension() == ".asm" && e.path().filename().string()[0] != '_')
      out.push_back(e.path());
  std::sort(out.begin(), out.end());
  return out;
}

// The shared fixture names its directory after the test, and a parameterised
// test's name has slashes: the directory is made here instead.
class GoldenCorpus : public ZqDirFixture, public ::testing::WithParamInterface<fs::path> {
 protected:
  void SetUp() override {
    std::string tmpl = (fs::temp_directory_path() / "zq_golden_XXXXXX").string();
    ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
    root_ = tmpl;
    dir_ = root_ / "w";
    fs::create_directory(dir_);
    fs::create_directory(root_ / "tmp");
  }
};

TEST_P(GoldenCorpus, Encodes) {
  const GoldenFile file = GOLD_read(GetParam());
  const std::string shown = fs::relative(GetParam(), ZQ_SOURCE_DIR).string();
  ASSERT_FALSE(file.lines.empty()) << shown << ": no line with expected bytes";
  const GoldenOutcome out = GOLD_check(file, dir_, [this](const std::string &args) { return zq(args); }, shown);
  std::string report;
  for (const std::string &f : out.findings) report += f + "\n";
  if (!file.xfail.empty()) {
    if (out.findings.empty()) {
      std::cout << shown << ": XFAIL file passes now; its mark can go\n";
      return;
    }
    std::cout << report;
    GTEST_SKIP() << shown << ": XFAIL: " << file.xfail << " (" << out.findings.size() << " findings)";
  }
  EXPECT_TRUE(out.findings.empty()) << out.findings.size() << " findings, " << out.compared << " of "
                                    << file.lines.size() << " lines compared:\n" << report;
}

INSTANTIATE_TEST_SUITE_P(Corpus, GoldenCorpus, ::testing::ValuesIn(corpus_files()),
                         [](const ::testing::TestParamInfo<fs::path> &i) {
                           std::string name = fs::relative(i.param, golden_root()).replace_extension("").string();
                           for (char &c : name)
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           return name;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(GoldenCorpus);

}  // namespace
