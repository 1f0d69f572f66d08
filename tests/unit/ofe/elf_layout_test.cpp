// Layout of written files, checked byte by byte with the test's own reader.
#include <gtest/gtest.h>

#include <cstring>

#include "typical_object.h"

namespace ofe_test {
namespace {

using namespace OFE;

Elf save_and_parse(OBJECT_FILE *f, const std::string &name)
{
    std::string path = temp_path(name);
    EXPECT_EQ(f->save_obj(path.c_str()), 0);
    return parse_elf(path);
}

std::vector<unsigned char> le32(std::initializer_list<uint32_t> words)
{
    std::vector<unsigned char> out;
    for (uint32_t w : words)
        for (int i = 0; i < 4; ++i) out.push_back(static_cast<unsigned char>(w >> (8 * i)));
    return out;
}

TEST(ElfLayout, MinimalFileIsExactlyAsLaidOut)
{
    clear_errors();
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
        clear_errors();
        TypicalObject t = build_typical(big);
        Elf e = save_and_parse(t.file.get(), big ? "layout_be.o" : "layout_le.o");
        EXPECT_TRUE(errors().empty());

        EXPECT_EQ(e.bytes[4], 1);
        EXPECT_EQ(e.bytes[5], big ? 2 : 1);
        EXPECT_EQ(e.bytes[16], big ? 0 : 1);  // e_type in file order
        EXPECT_EQ(e.e_type, 1);
        EXPECT_EQ(e.e_machine, 40);
        EXPECT_EQ(e.e_version, 1u);
        EXPECT_EQ(e.e_flags, 0x05000000u);
        EXPECT_EQ(e.e_phoff, 0u);
        EXPECT_EQ(e.e_ehsize, 52);
        EXPECT_EQ(e.e_phentsize, 32);
        EXPECT_EQ(e.e_shentsize, 40);

        std::vector<std::string> order = {"",           ".group",          ".text",           ".data",
                                          ".bss",       "mysect",          ".text.inl",       ".debug_info",
                                          ".symtab",    ".rel.text",       ".rela.text",      ".rel.data",
                                          ".rel.debug_info", ".ZQ.symbol.alias", ".ZQ.section.flags", ".strtab",
                                          ".shstrtab"};
        ASSERT_EQ(e.section_names(), order);
        EXPECT_EQ(e.e_shnum, order.size());
        EXPECT_EQ(e.e_shstrndx, order.size() - 1);

        // Offsets: groups first, 4-aligned bookkeeping, user alignment, the
        // section header table 4-aligned at the end.
        std::vector<uint32_t> offsets = {0,    0x34, 0x3c, 0x48, 0x50,  0x50,  0x56,  0x58, 0x5c,
                                         0x13c, 0x144, 0x150, 0x160, 0x168, 0x179, 0x199, 0x1e4};
        for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(e.sections[i].sh_offset, offsets[i]) << order[i];
        EXPECT_EQ(e.e_shoff, 0x288u);
        EXPECT_EQ(e.bytes.size(), 0x288u + 17 * 40);
        EXPECT_EQ(e.bytes[0x4e], 0);  // gap after .data
        EXPECT_EQ(e.bytes[0x4f], 0);

        const Shdr &text = *e.find(".text"), &bss = *e.find(".bss"), &inl = *e.find(".text.inl");
        EXPECT_EQ(text.sh_flags, SHF_ALLOC | SHF_EXECINSTR);
        EXPECT_EQ(e.find(".data")->sh_flags, SHF_ALLOC | SHF_WRITE);
        EXPECT_EQ(e.find("mysect")->sh_flags, SHF_ALLOC);
        EXPECT_EQ(inl.sh_flags, SHF_ALLOC | SHF_EXECINSTR | SHF_GROUP);
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
    clear_errors();
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

    EXPECT_EQ(syms[0].st_other, 0);
    EXPECT_EQ(syms[1].st_info, 3);  // local section
    EXPECT_EQ(syms[1].st_shndx, e.index_of(".text"));
    EXPECT_EQ(syms[6].st_shndx, e.index_of(".group"));
    EXPECT_EQ(syms[8].st_value, 4u);
    EXPECT_EQ(syms[8].st_other, STV_HIDDEN);  // the default
    EXPECT_EQ(syms[9].st_other, STV_DEFAULT);
    EXPECT_EQ(syms[9].st_info, 0x12);  // global function
    EXPECT_EQ(syms[9].st_size, 12u);
    EXPECT_EQ(syms[10].st_info, 0x21);  // weak object
    EXPECT_EQ(syms[11].st_shndx, SHN_UNDEF);
    EXPECT_EQ(syms[12].st_shndx, SHN_COMMON);
    EXPECT_EQ(syms[12].st_value, 4u);
    EXPECT_EQ(syms[13].st_shndx, e.index_of(".text.inl"));
    // The engine's ids follow the file after locking.
    EXPECT_EQ(t.ext->id(), 11u);
    EXPECT_EQ(t.text->id(), 2u);
}

TEST(ElfLayout, RelocationSectionsRelAndRela)
{
    clear_errors();
    TypicalObject t = build_typical(false);
    Elf e = save_and_parse(t.file.get(), "relocs.o");
    int symtab = e.index_of(".symtab");
    struct Want {
        const char *name;
        uint32_t type;
        uint32_t entsize;
        const char *target;
        std::vector<Rel> entries;
    };
    std::vector<Want> wants = {
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
        auto got = e.relocs(*s);
        ASSERT_EQ(got.size(), w.entries.size());
        for (std::size_t i = 0; i < got.size(); ++i) {
            EXPECT_EQ(got[i].offset, w.entries[i].offset);
            EXPECT_EQ(got[i].info, w.entries[i].info);
            EXPECT_EQ(got[i].addend, w.entries[i].addend);
        }
    }
}

TEST(ElfLayout, GroupAliasAndVendorFlagContents)
{
    clear_errors();
    TypicalObject t = build_typical(false);
    Elf e = save_and_parse(t.file.get(), "vendor.o");

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
    struct Case {
        uint32_t flag;
        unsigned width;
    };
    for (Case c : {Case{0, 0}, Case{ZQ_SHF_UPDATE, 1}, Case{0x100, 2}, Case{0x10000, 3}, Case{0x1000000, 4}}) {
        SCOPED_TRACE(c.flag);
        clear_errors();
        auto f = make_elf();
        OF_SECTION *a = f->section_table()->new_section(".text");
        f->section_table()->new_section(".data");
        a->elf_api()->set_zq_sh_flags(c.flag);
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

TEST(ElfLayout, EmptySourceStillHasTheStandardSections)
{
    clear_errors();
    auto f = make_elf();
    for (const char *n : {".text", ".data", ".bss"}) f->section_table()->new_section(n);
    f->elf_api()->symalias_table(true);
    OF_SECTION *attrs = f->elf_api()->build_attributes();
    EXPECT_STREQ(attrs->name(), ".ARM.attributes");
    Elf e = save_and_parse(f.get(), "empty.o");
    std::vector<std::string> want = {"",           ".text",           ".data",           ".bss",    ".symtab",
                                     ".ZQ.symbol.alias", ".ARM.attributes", ".ZQ.section.flags", ".strtab", ".shstrtab"};
    EXPECT_EQ(e.section_names(), want);
    EXPECT_EQ(e.find(".ARM.attributes")->sh_type, SHT_ARM_ATTRIBUTES);
    EXPECT_EQ(e.find(".ZQ.symbol.alias")->sh_size, 9u);
    EXPECT_EQ(e.find(".ZQ.section.flags")->sh_size, 26u);
    EXPECT_TRUE(errors().empty());
}

TEST(ElfLayout, OffsetsOfEmptyAndAlignedSections)
{
    clear_errors();
    auto f = make_elf(false, nullptr);
    OF_SECTION_TABLE *st = f->section_table();
    OF_SECTION *one = st->new_section(".text");  // 1 byte at 0x34
    one->raw_data().UINT8_write(0xAA);
    OF_SECTION *empty_nobits = st->new_section(".bss");
    empty_nobits->set_align(8);
    OF_SECTION *aligned = st->new_section(".data");
    aligned->set_align(16);
    aligned->raw_data().UINT32_write(0x11223344);
    OF_SECTION *empty_note = st->new_section(".comment");
    Elf e = save_and_parse(f.get(), "align.o");
    EXPECT_EQ(e.find(".text")->sh_offset, 0x34u);
    EXPECT_EQ(e.find(".bss")->sh_offset, 0x38u);  // aligned, takes no room
    EXPECT_EQ(e.find(".data")->sh_offset, 0x40u);
    for (uint32_t i = 0x35; i < 0x40; ++i) EXPECT_EQ(e.bytes[i], 0) << i;
    EXPECT_EQ(e.find(".comment")->sh_offset, 0u);
    EXPECT_EQ(e.find(".comment")->sh_size, 0u);
    (void)empty_note;
}

TEST(ElfLayout, RelocationSectionNamesAndTypes)
{
    clear_errors();
    auto f = make_elf();
    OF_SECTION *ad = f->section_table()->new_section("a.data");
    ad->set_data();
    ad->raw_data().UINT32_write(0);
    OF_SYMBOL *s = ad->create_section_symbol();
    OF_RELOC *r = ad->new_reloc(false);
    r->set_type(f->reloc_type(OFR_RELLONG));
    r->set_symbol(s);
    OF_RELOC *ra = ad->new_reloc(true);
    ra->set_type(f->reloc_type(OFR_ARM_MOVT_ABS));
    ra->set_symbol(s);
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
    clear_errors();
    auto f = make_elf();
    OF_SECTION *foo = f->section_table()->new_section(".text.foo");
    OF_SECTION *bar = f->section_table()->new_section(".text.bar");
    for (OF_SECTION *code : {foo, bar}) {
        code->set_exec();
        code->raw_data().UINT32_write(0xE12FFF1E);
    }
    auto *xfoo = static_cast<ELF_SECTION *>(f->section_table()->new_section(".ARM.exidx.text.foo"));
    auto *xbar = static_cast<ELF_SECTION *>(f->section_table()->new_section(".ARM.exidx.text.bar"));
    EXPECT_EQ(xfoo->sh_type(), SHT_ARM_EXIDX);
    EXPECT_EQ(xfoo->sh_flags(), SHF_ALLOC | SHF_LINK_ORDER);
    xfoo->set_sh_link_order(foo->id());
    xbar->set_sh_link_order(bar->id());
    for (ELF_SECTION *x : {xfoo, xbar}) {
        x->raw_data().UINT32_write(0);
        x->raw_data().UINT32_write(1);
        OF_RELOC *r = x->new_reloc(false);
        r->set_type(f->reloc_type(OFR_ARM_PREL31));
        r->set_symbol(x == xfoo ? foo->create_section_symbol() : bar->create_section_symbol());
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
    clear_errors();
    auto f = make_elf();
    OF_SECTION *code = f->section_table()->new_section(".text");
    code->raw_data().UINT32_write(0);
    OF_SECTION *g = f->section_table()->new_group("lonely");
    OF_SYMBOL *sig = f->symbol_table()->new_symbol();
    sig->set_name("lonely");
    sig->set_section(code);
    g->group_api()->set_symbol(sig);
    Elf e = save_and_parse(f.get(), "nogroup.o");
    EXPECT_EQ(e.index_of("lonely"), -1);
    EXPECT_EQ(e.find(".text")->sh_flags & SHF_GROUP, 0u);
    EXPECT_TRUE(errors().empty());
}

TEST(ElfLayout, SymbolMetaSection)
{
    clear_errors();
    auto f = make_elf();
    OF_SECTION *code = f->section_table()->new_section(".text");
    code->raw_data().UINT32_write(0);
    ELF_FILE *e = f->elf_api();
    ELF_SECTION *meta = e->create_sym_meta_scn();
    auto *plain = e->elf_symbol_table()->new_elf_symbol();
    plain->set_name("plain");
    auto *s = e->elf_symbol_table()->new_elf_symbol();
    s->set_name("fn");
    s->set_section(code);
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

}  // namespace
}  // namespace ofe_test
