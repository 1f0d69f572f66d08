// The files the engine writes, read by independent tools and linked.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <vector>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

struct Readings {
    std::string gnu, llvm;
};

// Both readers must take the file without a word on stderr.
Readings read_with_tools(const std::string &path)
{
    RunResult gnu = run("arm-none-eabi-readelf -a -W " + path);
    EXPECT_EQ(gnu.status, 0) << path;
    EXPECT_EQ(gnu.err, "") << path;
    RunResult llvm = run("llvm-readelf --all " + path);
    EXPECT_EQ(llvm.status, 0) << path;
    EXPECT_EQ(llvm.err, "") << path;
    EXPECT_EQ(llvm.out.find("warning"), std::string::npos) << llvm.out;
    return {gnu.out, llvm.out};
}

// Some line holds the words of `words`, in that order, whatever the spacing;
// "*" stands for any one word.
bool contains_line(const std::string &text, const std::string &words)
{
    std::istringstream lines(text), want_in(words);
    std::vector<std::string> want{std::istream_iterator<std::string>(want_in), {}};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream in(line);
        std::vector<std::string> got{std::istream_iterator<std::string>(in), {}};
        for (std::size_t start = 0; start + want.size() <= got.size(); ++start)
            if (std::equal(want.begin(), want.end(), got.begin() + static_cast<std::ptrdiff_t>(start),
                           [](const std::string &w, const std::string &g) { return w == "*" || w == g; }))
                return true;
    }
    return false;
}

TEST(ElfTools, TypicalObjectReadsCleanly)
{
    for (bool big : {false, true}) {
        SCOPED_TRACE(big ? "big-endian" : "little-endian");
        TypicalObject t = build_typical(big);
        std::string path = temp_path(big ? "tools_be.o" : "tools_le.o");
        ASSERT_EQ(t.file->save_obj(path.c_str()), 0);
        EXPECT_TRUE(errors().empty());
        Readings r = read_with_tools(path);

        EXPECT_TRUE(contains_line(r.gnu, big ? "Data: 2's complement, big endian" : "Data: 2's complement, little endian"));
        EXPECT_TRUE(contains_line(r.gnu, "Flags: 0x5000000, Version5 EABI"));
        EXPECT_TRUE(contains_line(r.gnu, "Type: REL (Relocatable file)"));
        EXPECT_TRUE(contains_line(r.gnu, "Machine: ARM"));
        EXPECT_TRUE(contains_line(r.gnu, "COMDAT group section [ 1] `.group' [.text.inl] contains 1 sections:"));
        EXPECT_TRUE(contains_line(r.gnu, ".text PROGBITS 00000000 00003c 00000c 00 AX 0 0 4"));
        EXPECT_TRUE(contains_line(r.gnu, ".text.inl PROGBITS 00000000 000056 000002 00 AXG 0 0 2"));
        EXPECT_TRUE(contains_line(r.gnu, "R_ARM_CALL 00000000 ext"));
        EXPECT_TRUE(contains_line(r.gnu, "R_ARM_MOVT_ABS 00000000 ext + 10"));
        EXPECT_TRUE(contains_line(r.gnu, "R_ARM_ABS16 00000004 loop"));
        EXPECT_TRUE(contains_line(r.gnu, "Symbol table '.symtab' contains 14 entries:"));
        EXPECT_TRUE(contains_line(r.gnu, "9: 00000000 12 FUNC GLOBAL DEFAULT 2 main"));
        EXPECT_TRUE(contains_line(r.gnu, "10: 00000004 0 OBJECT WEAK HIDDEN 3 wk"));
        EXPECT_TRUE(contains_line(r.gnu, "12: 00000004 8 OBJECT GLOBAL HIDDEN COM cmn"));
        EXPECT_TRUE(contains_line(r.llvm, "R_ARM_MOVT_ABS 00000000 ext + 10"));
    }
}

TEST(ElfTools, LinkerAcceptsObjects)
{
    for (bool big : {false, true}) {
        SCOPED_TRACE(big ? "big-endian" : "little-endian");
        TypicalObject t = build_typical(big);
        // A group member with its own relocations.
        t.inl->raw_data().UINT32_write(0);
        new_reloc(t.file.get(), t.inl, OFR_RELLONG, t.ext, 2);
        std::string in = temp_path(big ? "ld_in_be.o" : "ld_in_le.o");
        std::string out = temp_path(big ? "ld_out_be.o" : "ld_out_le.o");
        ASSERT_EQ(t.file->save_obj(in.c_str()), 0);
        RunResult ld = run(std::string("arm-none-eabi-ld ") + (big ? "-EB" : "-EL") + " -r -o " + out + " " + in);
        EXPECT_EQ(ld.status, 0);
        EXPECT_EQ(ld.err, "");
        RunResult syms = run("arm-none-eabi-readelf -s -W " + out);
        EXPECT_TRUE(contains_line(syms.out, "FUNC GLOBAL DEFAULT * main"));
        EXPECT_TRUE(contains_line(syms.out, "GLOBAL DEFAULT UND ext"));
        RunResult rel = run("arm-none-eabi-readelf -r -W " + out);
        EXPECT_TRUE(contains_line(rel.out, "R_ARM_CALL"));
        EXPECT_TRUE(contains_line(rel.out, "R_ARM_MOVT_ABS"));
    }
}

TEST(ElfTools, SmallerObjectsReadCleanly)
{
    // Sections only, no symbols but the null one.
    auto plain = make_elf(false, nullptr);
    std::string p1 = temp_path("plain.o");
    ASSERT_EQ(plain->save_obj(p1.c_str()), 0);
    read_with_tools(p1);

    // Unwind sections with links and a metadata section.
    auto f = make_elf(true);
    OF_SECTION *code = new_section(f.get(), ".text.f", {0xE12FFF1E});
    code->set_exec();
    auto *x = static_cast<ELF_SECTION *>(new_section(f.get(), ".ARM.exidx.text.f", {0, 1}));
    x->set_sh_link_order(code->id());
    new_reloc(f.get(), x, OFR_ARM_PREL31, code->create_section_symbol());
    auto *fn = new_symbol(f.get(), "f", code)->elf_api();
    fn->set_type(OFY_FUNCTION);
    fn->set_binding(OFB_GLOBAL);
    fn->set_retained(true);
    f->elf_api()->symalias_table(true);
    std::string p2 = temp_path("exidx_be.o");
    ASSERT_EQ(f->save_obj(p2.c_str()), 0);
    Readings rd = read_with_tools(p2);
    EXPECT_TRUE(contains_line(rd.gnu, ".ARM.exidx ARM_EXIDX 00000000 * 000008 08 AL 1 0 0"));
    EXPECT_TRUE(errors().empty());
}

}  // namespace
}  // namespace ofe_test
