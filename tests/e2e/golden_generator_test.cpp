// The corpus under tests/golden/<arch> is what scripts/golden/gen.py writes
// from the reference tools today: a hand edit or a generator change without
// its output shows here. The generator's own unit tests run here too.
#include <gtest/gtest.h>

#include <algorithm>

#include "zq_dir_fixture.h"

namespace fs = std::filesystem;

namespace {

class GoldenGenerator : public ZqDirFixture {
 protected:
  void SetUp() override {
    ZqDirFixture::SetUp();
    if (sh("command -v python3 && command -v llvm-mc && command -v arm-none-eabi-as").status != 0)
      GTEST_SKIP() << "python3, llvm-mc or arm-none-eabi-as missing (scripts/setup.sh installs them)";
  }
  const std::string scripts_ = "'" + (fs::path(ZQ_SOURCE_DIR) / "scripts" / "golden").string() + "'";
};

// Files of the architecture folders that scripts/golden/<name>/gen.py writes
// carry the prefix "<name>_" (and say which generator wrote them); the others
// are gen.py's own.
constexpr const char *SUB_GENERATORS[] = {"t2mem", "t2dp"};

// The files of the architecture folders, relative to `root`: those of the
// sub-generator `sub`, or with none, those of gen.py.
std::vector<std::string> generated_files(const fs::path &root, const std::string &sub = "") {
  std::vector<std::string> out;
  if (!fs::exists(root)) return out;
  for (const auto &e : fs::recursive_directory_iterator(root)) {
    const std::string rel = fs::relative(e.path(), root).string();
    if (!e.is_regular_file() || !rel.starts_with("v")) continue;
    const std::string name = e.path().filename().string();
    if (!sub.empty()) {
      if (name.starts_with(sub + "_")) out.push_back(rel);
      continue;
    }
    const std::string text = slurp(e.path());
    if (text.find("Written by scripts/golden/") != std::string::npos &&
        text.find("Written by scripts/golden/gen.py") == std::string::npos)
      continue;
    out.push_back(rel);
  }
  std::sort(out.begin(), out.end());
  return out;
}

TEST_F(GoldenGenerator, UnitTests) {
  const ZqRun r = sh("PYTHONDONTWRITEBYTECODE=1 python3 -m unittest discover -s " + scripts_);
  EXPECT_EQ(r.status, 0) << r.err;
}

TEST_F(GoldenGenerator, CorpusIsTheGeneratorsOutput) {
  const ZqRun r = sh("PYTHONDONTWRITEBYTECODE=1 python3 " + scripts_ + "/gen.py --out out --review review.txt");
  ASSERT_EQ(r.status, 0) << r.err;
  const fs::path checked_in = fs::path(ZQ_SOURCE_DIR) / "tests" / "golden";
  const std::vector<std::string> made = generated_files(path("out"));
  EXPECT_EQ(made, generated_files(checked_in));
  for (const std::string &f : made)
    EXPECT_TRUE(slurp(path("out") / f) == slurp(checked_in / f)) << f << " differs from a fresh run of gen.py";
  EXPECT_EQ(get("review.txt"), slurp(fs::path(ZQ_SOURCE_DIR) / "scripts" / "golden" / "review.txt"));
}

// The 16-bit Thumb files have a generator of their own.
TEST_F(GoldenGenerator, Thumb16FilesAreTheirGeneratorsOutput) {
  const ZqRun r = sh("PYTHONDONTWRITEBYTECODE=1 python3 " + scripts_ + "/t16/gen_t16.py --check --out '" +
                     (fs::path(ZQ_SOURCE_DIR) / "tests" / "golden").string() + "'");
  EXPECT_EQ(r.status, 0) << r.err;
}

TEST_F(GoldenGenerator, SubCorporaAreTheirGeneratorsOutput) {
  const fs::path checked_in = fs::path(ZQ_SOURCE_DIR) / "tests" / "golden";
  for (const std::string sub : SUB_GENERATORS) {
    const std::string out = "out_" + sub;
    // A generator that keeps a review list writes it beside its output.
    const fs::path review = fs::path(ZQ_SOURCE_DIR) / "scripts" / "golden" / sub / "review.txt";
    const bool reviewed = fs::exists(review);
    const ZqRun r = sh("PYTHONDONTWRITEBYTECODE=1 python3 " + scripts_ + "/" + sub + "/gen.py --out " + out +
                       (reviewed ? " --review review_" + sub + ".txt" : std::string()));
    ASSERT_EQ(r.status, 0) << r.err;
    const std::vector<std::string> made = generated_files(path(out), sub);
    EXPECT_EQ(made, generated_files(checked_in, sub));
    for (const std::string &f : made)
      EXPECT_TRUE(slurp(path(out) / f) == slurp(checked_in / f)) << f << " differs from a fresh run of " << sub;
    if (reviewed) {
      EXPECT_EQ(get("review_" + sub + ".txt"), slurp(review));
    }
  }
}

}  // namespace
