// ELF-specific behaviour of the model: repairs at lock, section symbols,
// aliases by name, byte order changes, and groups made from a typed section.
#include <gtest/gtest.h>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

TEST(ElfModel, NullRecordsAreRepairedAtLock)
{
    clear_errors();
    auto f = make_elf();
    ELF_FILE *e = f->elf_api();
    OF_SECTION *text = f->section_table()->new_section(".text");
    text->raw_data().UINT32_write(0);
    OF_SYMBOL *s = f->symbol_table()->new_symbol();
    s->set_name("s");
    f->symbol_table()->symbol(0)->set_name("not null");
    e->elf_section_table()->elf_section(0)->set_sh_type(SHT_PROGBITS);
    std::string path = temp_path("repaired.o");
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    EXPECT_TRUE(has_error(7, "section 0 is not a NULL section"));
    EXPECT_TRUE(has_error(7, "symbol 0 is not a NULL symbol"));
    Elf out = parse_elf(path);
    EXPECT_EQ(out.sections[0].sh_type, SHT_NULL);
    EXPECT_EQ(out.sections[0].name, "");
    auto syms = out.symbols();
    ASSERT_EQ(syms.size(), 3u);
    EXPECT_EQ(syms[0].name, "");
    EXPECT_EQ(syms[1].name, "not null");
    EXPECT_EQ(run("arm-none-eabi-readelf -a -W " + path).err, "");
}

TEST(ElfModel, SectionSymbolsAliasesAndByteOrder)
{
    clear_errors();
    auto f = make_elf();
    ELF_FILE *e = f->elf_api();
    OF_SECTION *text = f->section_table()->new_section(".text");
    OF_SECTION *data = f->section_table()->new_section(".data");
    OF_SYMBOL *made = text->symbol();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->type(), OFY_SECTION);
    EXPECT_EQ(made->binding(), OFB_LOCAL);
    EXPECT_EQ(made->section(), text);
    EXPECT_EQ(text->symbol(), made);
    OF_SYMBOL *other = data->create_section_symbol();
    other->set_value(8);
    OF_SYMBOL *exact = data->create_section_symbol();
    EXPECT_EQ(data->symbol(), exact);  // value 0 wins

    OF_SYMBOL *a = f->symbol_table()->new_symbol();
    a->set_name("a");
    OF_SYMBOL *b = f->symbol_table()->new_symbol();
    b->set_name("b");
    ELF_SYMALIAS_TABLE *aliases = e->symalias_table(true);
    EXPECT_EQ(e->symalias_table(false), aliases);
    aliases->add_alias("a", "b");
    aliases->add_alias("a", "missing");
    aliases->add_alias(a->id(), a->id());
    ASSERT_EQ(aliases->alias_count(), 1u);
    EXPECT_EQ(aliases->alias(0), std::make_pair(a->id(), b->id()));

    e->set_machine_endian(OFE_BIG);
    EXPECT_TRUE(text->raw_data_nocheck().is_big_endian());
    text->raw_data().UINT32_write(0x01020304);
    OF_SECTION *late = f->section_table()->new_section(".rodata");
    EXPECT_TRUE(late->raw_data_nocheck().is_big_endian());
    EXPECT_EQ(e->e_ident_entry(EI_DATA), ELFDATA2MSB);
    f->machine_db()->elf_set_gnu_symver(f.get(), true);
    bool symver = false;
    EXPECT_TRUE(f->machine_db()->elf_gnu_symver(f.get(), symver));
    EXPECT_TRUE(symver);
    f->machine_db()->elf_set_gnu_symver(f.get(), false);

    std::string path = temp_path("aliases.o");
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    Elf out = parse_elf(path);
    EXPECT_TRUE(out.big);
    EXPECT_EQ(out.u32(out.find(".text")->sh_offset), 0x01020304u);
    auto bytes = out.contents(*out.find(".ZQ.symbol.alias"));
    ASSERT_EQ(bytes.size(), 17u);
    EXPECT_EQ(bytes[12], a->id());
    EXPECT_EQ(bytes[16], b->id());
    EXPECT_TRUE(errors().empty());
}

TEST(ElfModel, GroupFromATypedSection)
{
    clear_errors();
    auto f = make_elf();
    OF_SECTION_TABLE *t = f->section_table();
    // As the section directives do it: a section that becomes a group later.
    auto *g = static_cast<ELF_SECTION *>(t->new_section("fn"));
    g->set_allocated(true);
    g->set_sh_type(SHT_PROGBITS);
    g->set_sh_type(SHT_GROUP);
    g->set_sh_flags(0);
    OF_SECTION *a = t->new_section(".text.fn");
    a->set_exec();
    a->raw_data().UINT32_write(0);
    OF_SECTION *b = t->new_section(".data.fn");
    b->set_data();
    b->raw_data().UINT32_write(0);
    OF_SYMBOL *sig = f->symbol_table()->new_symbol();
    sig->set_name("fn");
    sig->set_section(a);
    sig->set_binding(OFB_GLOBAL);
    OF_GROUP_TABLE *grp = g->group_api();
    ASSERT_NE(grp, nullptr);
    EXPECT_TRUE(g->group_type());
    grp->set_comdat_flag();
    grp->add_member(b);
    grp->add_member(a);
    grp->set_symbol(sig);
    EXPECT_EQ(grp->member(1), a);
    EXPECT_EQ(grp->member(2), nullptr);
    EXPECT_EQ(grp->symbol(), sig);
    EXPECT_STREQ(grp->name(), "fn");
    EXPECT_EQ(a->group(), grp);
    std::string path = temp_path("typed_group.o");
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    Elf out = parse_elf(path);
    EXPECT_EQ(out.index_of("fn"), 1);
    std::vector<unsigned char> want = {1, 0, 0, 0, static_cast<unsigned char>(out.index_of(".data.fn")), 0, 0, 0,
                                       static_cast<unsigned char>(out.index_of(".text.fn")), 0, 0, 0};
    EXPECT_EQ(out.contents(out.sections[1]), want);
    EXPECT_EQ(out.find(".data.fn")->sh_flags, SHF_ALLOC | SHF_WRITE | SHF_GROUP);
    RunResult r = run("arm-none-eabi-readelf -g -W " + path);
    EXPECT_NE(r.out.find("COMDAT group section [    1] `fn' [fn] contains 2 sections"), std::string::npos) << r.out;
    EXPECT_EQ(r.err, "");
    EXPECT_TRUE(errors().empty());

    // A member leaving the group loses the flag.
    auto h = make_elf();
    OF_SECTION *m = h->section_table()->new_section(".text.m");
    OF_SECTION *hg = h->section_table()->new_group("m");
    hg->group_api()->add_member(m);
    EXPECT_NE(m->elf_api()->sh_flags() & SHF_GROUP, 0u);
    hg->group_api()->delete_member(m);
    EXPECT_EQ(m->elf_api()->sh_flags() & SHF_GROUP, 0u);
    EXPECT_EQ(hg->group_api()->member_count(), 0u);
}

}  // namespace
}  // namespace ofe_test
