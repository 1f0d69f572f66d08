// Layout of written files, checked byte by byte with the test's own reader.
#include <gtest/gtest.h>

#include <cstring>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

std::vector<unsigned char> le32(std::initializer_list<uint32_t> words)
{
    std::vector<unsigned char> out;
    for (uint32_t w : words)
        for (int i = 0; i < 4; ++i) out.push_back(static_cast<unsigned char>(w >> (8 * i)));
    return out;
}

TEST(ElfLayout, MinimalFileIsExactlyAsLaidOut)
{
    auto f = make_elf(false, nullptr);  // no producer: no vendor flags section
    std::string path = temp_path("minimal.o");
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    std::vector<unsigned char> want = {0x7F, 'E', 'L', 'F', 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    auto header = le32({0x00280001, 1, 0, 0, 0x60, 0x05000000});  // e_type, e_machine, ..., e_flags
    want.insert(want.end(), header.begin(), header.end());
    for (uint16_t h : {52, 32, 0, 40, 4, 3}) {
        want.push_back(static_cast<unsigned char>(h));
        want.push_back(static_cast<unsigned char>(h >> 8));
    }
    want.resize(0x34 + 16, 0);                          // .symtab: the null symbol
    want.push_back(0);                                  // .strtab
    for (const char *n : {"", ".symtab", ".strtab", ".shstrtab"})  // .shstrtab
        want.insert(want.end(), n, n + std::strlen(n) + 1);
    want.resize(0x60, 0);
    want.resize(0x60 + 40, 0);  // section 0
    for (auto w : {le32({1, 2, 0, 0, 0x34, 16, 2, 1, 0, 16}), le32({9, 3, 0x20, 0, 0x44, 1, 0, 0, 0, 1}),
                   le32({17, 3, 0x20, 0, 0x45, 27, 0, 0, 0, 1})})
        want.insert(want.end(), w.begin(), w.end());
    EXPECT_EQ(read_file(path), want);
    EXPECT_TRUE(errors().empty());
}

TEST(ElfLayout, TypicalFileOrderOffsetsAndHeader)
{
    for (bool big : {false, true}) {
        SCOPED_TRACE(big ? "big-endian" : "little-endian");
        TypicalObject t = build_typical(big);
        Elf e = save_and_parse(t.file.get(), big ? "layout_be.o" : "layout_le.o");
        EXPECT_TRUE(errors().empty());

        // The rest of the header: in the minimal file and through the readers (ElfTools).
        std::vector<std::string> order = {"",           ".group",          ".text",           ".data",
                                          ".bss",       "mysect",          ".text.inl",       ".debug_info",
                                          ".symtab",    ".rel.text",       ".rela.text",      ".rel.data",
                                          ".rel.debug_info", ".ZQ.symbol.alias", ".ZQ.section.flags", ".strtab",
                                          ".shstrtab"};
        ASSERT_EQ(e.section_names(), order);
        EXPECT_EQ(e.u16(48), order.size());      // e_shnum
        EXPECT_EQ(e.u16(50), order.size() - 1);  // e_shstrndx

        // Offsets: groups first, 4-aligned bookkeeping, user alignment, the
        // section header table 4-aligned at the end.
        std::vector<uint32_t> offsets = {0,    0x34, 0x3c, 0x48, 0x50,  0x50,  0x56,  0x58, 0x5c,
                                         0x13c, 0x144, 0x150, 0x160, 0x168, 0x179, 0x199, 0x1e4};
        for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(e.sections[i].sh_offset, offsets[i]) << order[i];
        EXPECT_EQ(e.u32(32), 0x288u);  // e_shoff
        EXPECT_EQ(e.bytes.size(), 0x288u + 17 * 40);
        EXPECT_EQ(e.bytes[0x4e], 0);  // gap after .data
        EXPECT_EQ(e.bytes[0x4f], 0);

        const Shdr &text = *e.find(".text"), &bss = *e.find(".bss");
        EXPECT_EQ(e.find(".data")->sh_flags, SHF_ALLOC | SHF_WRITE);
        EXPECT_EQ(e.find("mysect")->sh_flags, SHF_ALLOC);
        EXPECT_EQ(bss.sh_type, SHT_NOBITS);
        EXPECT_EQ(bss.sh_size, 16u);
        EXPECT_EQ(e.find(".debug_info")->sh_flags, 0u);
        EXPECT_EQ(e.contents(text), (big ? std::vector<unsigned char>{0xEB, 0xFF, 0xFF, 0xFE, 0xE1, 0xA0, 0x00,
                                                                      0x00, 0xE3, 0x40, 0x00, 0x00}
                                         : std::vector<unsigned char>{0xFE, 0xFF, 0xFF, 0xEB, 0x00, 0x00, 0xA0,
                                                                      0xE1, 0x00, 0x00, 0x40, 0xE3}));
    }
}

TEST(ElfLayout, SymbolTableLocalsFirstAndVisibility)
{
    TypicalObject t = build_typical(false);
    Elf e = save_and_parse(t.file.get(), "symbols.o");
    const Shdr &symtab = *e.find(".symtab");
    EXPECT_EQ(symtab.sh_link, static_cast<uint32_t>(e.index_of(".strtab")));
    EXPECT_EQ(symtab.sh_entsize, 16u);
    std::vector<Sym> syms = e.symbols();
    std::vector<std::string> names;
    for (const Sym &s : syms) names.push_back(s.name);
    // Creation order within locals and within the rest.
    std::vector<std::string> want = {"",     ".text", ".data", ".bss", "mysect", ".text.inl", ".group",
                                     ".debug_info", "loop", "main", "wk",   "ext",    "cmn",       ".text.inl"};
    EXPECT_EQ(names, want);
    EXPECT_EQ(symtab.sh_info, 9u);
    for (std::size_t i = 0; i < syms.size(); ++i) EXPECT_EQ(syms[i].st_info >> 4 == 0, i < 9) << names[i];

    // main, wk and cmn are read by the tools in ElfTools.
    EXPECT_EQ(syms[0].st_other, 0);
    EXPECT_EQ(syms[1].st_info, 3);  // local section
    EXPECT_EQ(syms[1].st_shndx, e.index_of(".text"));
    EXPECT_EQ(syms[6].st_shndx, e.index_of(".group"));
    EXPECT_EQ(syms[8].st_value, 4u);
    EXPECT_EQ(syms[8].st_other, STV_HIDDEN);  // the default
    EXPECT_EQ(syms[11].st_shndx, SHN_UNDEF);
    EXPECT_EQ(syms[13].st_shndx, e.index_of(".text.inl"));
    // The engine's ids follow the file after locking.
    EXPECT_EQ(t.ext->id(), 11u);
    EXPECT_EQ(t.text->id(), 2u);
}

TEST(ElfLayout, RelocationSectionsRelAndRela)
{
    Elf e = save_and_parse(build_typical(false).file.get(), "relocs.o");
    int symtab = e.index_of(".symtab");
    struct Want { const char *name; uint32_t type, entsize; const char *target; std::vector<Rel> entries; };
    const Want wants[] = {
        {".rel.text", SHT_REL, 8, ".text", {{0, (11u << 8) | 28, 0}}},
        {".rela.text", SHT_RELA, 12, ".text", {{8, (11u << 8) | 44, 0x10}}},
        {".rel.data", SHT_REL, 8, ".data", {{0, (9u << 8) | 2, 0}, {4, (8u << 8) | 5, 0}}},
        {".rel.debug_info", SHT_REL, 8, ".debug_info", {{0, (1u << 8) | 2, 0}}},
    };
    for (const Want &w : wants) {
        SCOPED_TRACE(w.name);
        const Shdr *s = e.find(w.name);
        ASSERT_NE(s, nullptr);
        EXPECT_EQ(s->sh_type, w.type);
        EXPECT_EQ(s->sh_entsize, w.entsize);
        EXPECT_EQ(s->sh_flags, 0u);
        EXPECT_EQ(s->sh_link, static_cast<uint32_t>(symtab));
        EXPECT_EQ(s->sh_info, static_cast<uint32_t>(e.index_of(w.target)));
        EXPECT_EQ(e.relocs(*s), w.entries);
    }
}

TEST(ElfLayout, GroupAliasAndVendorFlagContents)
{
    Elf e = save_and_parse(build_typical(false).file.get(), "vendor.o");

    const Shdr &group = *e.find(".group");
    EXPECT_EQ(group.sh_type, SHT_GROUP);
    EXPECT_EQ(group.sh_entsize, 4u);
    EXPECT_EQ(group.sh_link, static_cast<uint32_t>(e.index_of(".symtab")));
    EXPECT_EQ(group.sh_info, 13u);
    EXPECT_EQ(e.contents(group), le32({GRP_COMDAT, static_cast<uint32_t>(e.index_of(".text.inl"))}));

    // version, count, "ZQ", then (wk, main) by their final ids
    std::vector<unsigned char> alias = {1, 0, 0, 0, 1, 0, 'Z', 'Q', 0, 10, 0, 0, 0, 9, 0, 0, 0};
    const Shdr &as = *e.find(".ZQ.symbol.alias");
    EXPECT_EQ(as.sh_type, SHT_PROGBITS);
    EXPECT_EQ(as.sh_entsize, 8u);
    EXPECT_EQ(e.contents(as), alias);

    // version 1, 16 reserved, count = mysect's id + 1, width 1, one byte each
    std::vector<unsigned char> flags = le32({1, 0, 0, 0, 0, 6});
    flags.insert(flags.end(), {1, 0, 0, 0, 0, 0, 0, ZQ_SHF_RETAIN});
    const Shdr &fs = *e.find(".ZQ.section.flags");
    EXPECT_EQ(fs.sh_type, SHT_PROGBITS);
    EXPECT_EQ(e.contents(fs), flags);
}

TEST(ElfLayout, VendorFlagWidthAndCount)
{
    struct Case { uint32_t flag; unsigned width; };
    for (Case c : {Case{0, 0}, Case{ZQ_SHF_UPDATE, 1}, Case{0x100, 2}, Case{0x10000, 3}, Case{0x1000000, 4}}) {
        SCOPED_TRACE(c.flag);
        auto f = make_elf();
        f->section_table()->new_section(".text")->elf_api()->set_zq_sh_flags(c.flag);
        f->section_table()->new_section(".data");
        Elf e = save_and_parse(f.get(), "flags.o");
        auto bytes = e.contents(*e.find(".ZQ.section.flags"));
        ASSERT_EQ(bytes.size(), 26u + (c.flag ? 2 * c.width : 0));
        EXPECT_EQ(e.u32(e.find(".ZQ.section.flags")->sh_offset + 20), c.flag ? 2u : 0u);  // count
        EXPECT_EQ(bytes[24], c.width);
        if (c.width) {
            EXPECT_EQ(bytes[26 + c.width], c.flag & 0xFF);  // entry of section 1, low byte first
        }
    }
}

TEST(ElfLayout, RelocationSectionNamesAndTypes)
{
    auto f = make_elf();
    OF_SECTION *ad = new_section(f.get(), "a.data");
    ad->set_data();
    OF_SYMBOL *s = ad->create_section_symbol();
    OF_RELOC *r = new_reloc(f.get(), ad, OFR_RELLONG, s), *ra = new_reloc(f.get(), ad, OFR_ARM_MOVT_ABS, s);
    ASSERT_NE(r->table(), ra->table());
    Elf e = save_and_parse(f.get(), "reldata.o");
    // ".rel" + "a.data" reads as a RELA name but stays REL.
    const Shdr *rel = nullptr, *rela = nullptr;
    for (const Shdr &sh : e.sections) {
        if (sh.name == ".rela.data" && sh.sh_type == SHT_REL) rel = &sh;
        if (sh.name == ".relaa.data") rela = &sh;
    }
    ASSERT_NE(rel, nullptr);
    EXPECT_EQ(rel->sh_entsize, 8u);
    ASSERT_NE(rela, nullptr);
    EXPECT_EQ(rela->sh_type, SHT_RELA);
    EXPECT_EQ(rela->sh_entsize, 12u);
}

TEST(ElfLayout, UnwindSectionsMergeToOneName)
{
    auto f = make_elf();
    OF_SECTION *foo = new_section(f.get(), ".text.foo", {0xE12FFF1E}), *bar = new_section(f.get(), ".text.bar", {0xE12FFF1E});
    foo->set_exec();
    bar->set_exec();
    auto *xfoo = static_cast<ELF_SECTION *>(f->section_table()->new_section(".ARM.exidx.text.foo"));
    auto *xbar = static_cast<ELF_SECTION *>(f->section_table()->new_section(".ARM.exidx.text.bar"));
    EXPECT_EQ(xfoo->sh_type(), SHT_ARM_EXIDX);
    EXPECT_EQ(xfoo->sh_flags(), SHF_ALLOC | SHF_LINK_ORDER);
    xfoo->set_sh_link_order(foo->id());
    xbar->set_sh_link_order(bar->id());
    for (ELF_SECTION *x : {xfoo, xbar}) {
        x->raw_data().UINT32_write(0);
        x->raw_data().UINT32_write(1);
        new_reloc(f.get(), x, OFR_ARM_PREL31, (x == xfoo ? foo : bar)->create_section_symbol());
    }
    Elf e = save_and_parse(f.get(), "exidx.o");
    std::vector<int> exidx, rel;
    for (std::size_t i = 0; i < e.sections.size(); ++i) {
        if (e.sections[i].name == ".ARM.exidx") exidx.push_back(static_cast<int>(i));
        if (e.sections[i].name == ".rel.ARM.exidx") rel.push_back(static_cast<int>(i));
    }
    ASSERT_EQ(exidx.size(), 2u);
    ASSERT_EQ(rel.size(), 2u);
    EXPECT_EQ(e.sections[exidx[0]].sh_link, static_cast<uint32_t>(e.index_of(".text.foo")));
    EXPECT_EQ(e.sections[exidx[1]].sh_link, static_cast<uint32_t>(e.index_of(".text.bar")));
    EXPECT_EQ(e.sections[rel[0]].sh_info, static_cast<uint32_t>(exidx[0]));
    EXPECT_EQ(e.sections[rel[1]].sh_info, static_cast<uint32_t>(exidx[1]));
    EXPECT_TRUE(errors().empty());
}

TEST(ElfLayout, GroupWithoutMembersDisappears)
{
    auto f = make_elf();
    OF_SECTION *code = new_section(f.get(), ".text");
    f->section_table()->new_group("lonely")->group_api()->set_symbol(new_symbol(f.get(), "lonely", code));
    Elf e = save_and_parse(f.get(), "nogroup.o");
    EXPECT_EQ(e.index_of("lonely"), -1);
    EXPECT_EQ(e.find(".text")->sh_flags & SHF_GROUP, 0u);
    EXPECT_TRUE(errors().empty());
}

TEST(ElfLayout, SymbolMetaSection)
{
    auto f = make_elf();
    OF_SECTION *code = new_section(f.get(), ".text");
    ELF_FILE *e = f->elf_api();
    ELF_SECTION *meta = e->create_sym_meta_scn();
    new_symbol(f.get(), "plain");
    auto *s = new_symbol(f.get(), "fn", code)->elf_api();
    s->set_binding(OFB_GLOBAL);
    s->init_metainfo();
    s->set_user_section_name("sec");
    s->set_location(0x200);
    s->set_retained(true);
    s->add_to_optprintf_forward("a");
    s->add_to_optprintf_forward("b");
    Elf out = save_and_parse(f.get(), "meta.o");
    const Shdr *m = out.find(".symtab_meta");
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->sh_type, SHT_ZQ_SYMTAB_META);
    EXPECT_EQ(m->sh_link, static_cast<uint32_t>(out.index_of(".symtab")));
    EXPECT_EQ(meta->id(), static_cast<unsigned>(out.index_of(".symtab_meta")));
    // version; then tags ascending with 15 last: tag, value, symbol id (2)
    std::vector<unsigned char> want = {1, 1, 1, 2, 2, 0x80, 0x04, 2, 5, 'a', 0, 2, 5, 'b', 0, 2, 15, 's', 'e', 'c', 0, 2};
    EXPECT_EQ(out.contents(*m), want);
    EXPECT_TRUE(errors().empty());
}

// More sections than the 16-bit header fields can count.
TEST(ElfLimits, SectionCountEscapeAndExtendedIndices)
{
    auto f = make_elf(false, nullptr);
    OF_SECTION_TABLE *t = f->section_table();
    const unsigned user = 0xFF10;
    OF_SECTION *last = nullptr;
    for (unsigned i = 0; i < user; ++i) {
        last = t->new_section(("s" + std::to_string(i)).c_str());
        last->set_data();
    }
    last->raw_data().UINT32_write(0x12345678);
    OF_SYMBOL *high = new_symbol(f.get(), "high", last);
    high->set_value(4);
    high->set_binding(OFB_GLOBAL);
    new_symbol(f.get(), "low", t->section_name("s0"));

    std::string path = temp_path("many.o");
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    EXPECT_TRUE(errors().empty());

    Elf e = parse_elf(path);
    EXPECT_EQ(e.u16(48), 0);       // e_shnum
    EXPECT_EQ(e.u16(50), 0xFFFF);  // e_shstrndx
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
