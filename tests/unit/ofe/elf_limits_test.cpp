// More sections than the 16-bit header fields can count.
#include <gtest/gtest.h>

#include <string>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

TEST(ElfLimits, SectionCountEscapeAndExtendedIndices)
{
    clear_errors();
    auto f = make_elf(false, nullptr);
    OF_SECTION_TABLE *t = f->section_table();
    const unsigned user = 0xFF10;
    OF_SECTION *last = nullptr;
    for (unsigned i = 0; i < user; ++i) {
        last = t->new_section(("s" + std::to_string(i)).c_str());
        last->set_data();
    }
    last->raw_data().UINT32_write(0x12345678);
    OF_SYMBOL *high = f->symbol_table()->new_symbol();
    high->set_name("high");
    high->set_section(last);
    high->set_value(4);
    high->set_binding(OFB_GLOBAL);
    OF_SYMBOL *low = f->symbol_table()->new_symbol();
    low->set_name("low");
    low->set_section(t->section_name("s0"));

    std::string path = temp_path("many.o");
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    EXPECT_TRUE(errors().empty());

    Elf e = parse_elf(path);
    EXPECT_EQ(e.e_shnum, 0);
    EXPECT_EQ(e.e_shstrndx, 0xFFFF);
    unsigned count = static_cast<unsigned>(e.sections.size());
    EXPECT_EQ(e.sections[0].sh_size, count);
    EXPECT_EQ(e.sections[0].sh_link, count - 1);
    EXPECT_EQ(e.sections.back().name, ".shstrtab");
    const Shdr *shndx = e.find(".symtab_shndx");
    ASSERT_NE(shndx, nullptr);
    EXPECT_EQ(shndx->sh_type, SHT_SYMTAB_SHNDX);
    EXPECT_EQ(shndx->sh_link, static_cast<uint32_t>(e.index_of(".symtab")));
    auto syms = e.symbols();
    ASSERT_EQ(syms.size(), 3u);
    EXPECT_EQ(syms[2].name, "high");
    EXPECT_EQ(syms[2].st_shndx, SHN_XINDEX);
    EXPECT_EQ(shndx->sh_size, 3u * 4);
    uint32_t xindex = e.u32(shndx->sh_offset + 8);
    EXPECT_EQ(xindex, static_cast<uint32_t>(e.index_of("s" + std::to_string(user - 1))));
    EXPECT_EQ(e.u32(shndx->sh_offset + 4), 0u);
    EXPECT_EQ(syms[1].st_shndx, e.index_of("s0"));

    RunResult r = run("arm-none-eabi-readelf -h -s -W " + path);
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.err, "");
    EXPECT_NE(r.out.find("Number of section headers:         0 (" + std::to_string(count) + ")"), std::string::npos)
        << r.out.substr(0, 1500);
    EXPECT_NE(r.out.find("GLOBAL HIDDEN  " + std::to_string(xindex) + " high"), std::string::npos);
    RunResult l = run("llvm-readelf -h -s " + path);
    EXPECT_EQ(l.status, 0);
    EXPECT_EQ(l.err, "");
}

}  // namespace
}  // namespace ofe_test
