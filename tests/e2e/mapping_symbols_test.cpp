// Mapping symbols mark where data, ARM code and Thumb code begin in each
// section, and a function label in Thumb code gets the Thumb bit. The
// symbol table is read back with readelf, which lists duplicates in order.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "zq_dir_fixture.h"

namespace {

class MappingSymbols : public ZqDirFixture {
 protected:
  // "name value section-index" of each symbol whose name starts with one
  // of `names`, in table order.
  std::vector<std::string> symbols(const std::string &obj, const std::vector<std::string> &names) {
    sh("arm-none-eabi-readelf -sW " + obj + " > syms.txt");
    std::vector<std::string> out;
    std::istringstream in(get("syms.txt"));
    for (std::string line; std::getline(in, line);) {
      std::istringstream row(line);
      std::string num, value, size, type, bind, vis, ndx, name;
      if (!(row >> num >> value >> size >> type >> bind >> vis >> ndx >> name)) continue;
      for (const std::string &n : names)
        if (name == n) out.push_back(name + " " + value + " " + ndx);
    }
    return out;
  }
};

TEST_F(MappingSymbols, EachChangeOfKindStateOrSectionStartsOne) {
  put("m.asm",
      "        .text\n"
      "        .word   1\n"
      "        .thumb\n"
      "thumb_fn:\n"
      "        NOP.W\n"
      "        .word   2\n"
      "        NOP.W\n"
      "        .arm\n"
      "arm_fn: NOP\n"
      "        .sect   \".text2\"\n"
      "        .thumb\n"
      "t2:     NOP.W\n"
      "        .text\n"
      "        NOP.W\n"
      "        .state16\n");
  ASSERT_EQ(zq("m.asm m.o -v7A8 --abi=eabi").status, 0);
  // Records in the order the fields came; returning to .text starts a new
  // one though the state is the same; .state16 at the end adds none.
  EXPECT_EQ(symbols("m.o", {"$a", "$t", "$d"}),
            (std::vector<std::string>{"$d 00000000 1", "$t 00000004 1", "$d 00000008 1", "$t 0000000c 1",
                                      "$a 00000010 1", "$t 00000000 2", "$t 00000014 1"}));
  EXPECT_EQ(symbols("m.o", {"thumb_fn", "arm_fn", "t2"}),
            (std::vector<std::string>{"thumb_fn 00000005 1", "arm_fn 00000010 1", "t2 00000001 2"}));
}

TEST_F(MappingSymbols, DataInThumbStateIsData) {
  put("d.asm", "        .thumb\n        .word   1, 2\n        .state32\n        .byte   3\n");
  ASSERT_EQ(zq("d.asm d.o -v7A8").status, 0);
  // The change of state starts a record of its own, of data again.
  EXPECT_EQ(symbols("d.o", {"$a", "$t", "$d"}), (std::vector<std::string>{"$d 00000000 1", "$d 00000008 1"}));
}

}  // namespace
