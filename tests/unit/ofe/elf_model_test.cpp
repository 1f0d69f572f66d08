// ELF-specific behaviour of the model: repairs at lock, section symbols,
// aliases by name, byte order changes, groups made from a typed section,
// and saving.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

TEST(ElfModel, NullRecordsAreRepairedAtLock)
{
    auto f = make_elf();
    ELF_FILE *e = f->elf_api();
    new_section(f.get(), ".text");
    new_symbol(f.get(), "s");
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

    OF_SYMBOL *a = new_symbol(f.get(), "a"), *b = new_symbol(f.get(), "b");
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

    Elf out = save_and_parse(f.get(), "aliases.o");
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
    auto f = make_elf();
    OF_SECTION_TABLE *t = f->section_table();
    // As the section directives do it: a section that becomes a group later.
    auto *g = static_cast<ELF_SECTION *>(t->new_section("fn"));
    g->set_allocated(true);
    g->set_sh_type(SHT_PROGBITS);
    g->set_sh_type(SHT_GROUP);
    g->set_sh_flags(0);
    OF_SECTION *a = new_section(f.get(), ".text.fn"), *b = new_section(f.get(), ".data.fn");
    a->set_exec();
    b->set_data();
    OF_SYMBOL *sig = new_symbol(f.get(), "fn", a);
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

// Saving never leaves a half-written file in place of an older one.
std::size_t files_in(const std::string &dir)
{
    std::size_t n = 0;
    for (const auto &entry : std::filesystem::directory_iterator(dir)) n += entry.is_regular_file();
    return n;
}

TEST(Save, FailureLeavesTheOldFile)
{
    std::string dir = temp_path("save_dir");
    std::filesystem::create_directories(dir);
    std::string path = dir + "/out.o";
    write_file(path, "previous contents");

    auto f = make_elf();
    f->section_table()->new_group("grp")->group_api()->add_member(new_section(f.get(), ".text"));  // no signature
    EXPECT_EQ(f->save_obj(path.c_str()), -1);
    EXPECT_TRUE(has_error(3, "a symbol has not been specified for the group section grp"));
    EXPECT_TRUE(has_error(2, "an error occurred while writing \"" + path + "\""));
    auto old = read_file(path);
    EXPECT_EQ(std::string(old.begin(), old.end()), "previous contents");
    EXPECT_EQ(files_in(dir), 1u);
    std::string nowhere = temp_path("no/such/dir/out.o");
    EXPECT_EQ(make_elf()->save_obj(nowhere.c_str()), -1);
    EXPECT_TRUE(has_error(2, "failed to open \"" + nowhere + "\" for writing"));

    // A file that may not be written is not replaced either.
    std::string locked = dir + "/readonly.o";
    write_file(locked, "keep");
    std::filesystem::permissions(locked, std::filesystem::perms::owner_read);
    auto k = make_elf();
    if (access(locked.c_str(), W_OK) != 0) {  // root may write anyway
        EXPECT_EQ(k->save_obj(locked.c_str()), -1);
        EXPECT_TRUE(has_error(2, "failed to open \"" + locked + "\" for writing"));
        auto kept = read_file(locked);
        EXPECT_EQ(std::string(kept.begin(), kept.end()), "keep");
    }
    EXPECT_EQ(files_in(dir), 2u);
}

TEST(Save, SuccessReplacesTheFileAndKeepsContentsReadable)
{
    std::string dir = temp_path("save_ok");
    std::filesystem::create_directories(dir);
    std::string path = dir + "/out.o";
    write_file(path, "previous contents");
    auto f = make_elf();
    OF_SECTION *data = new_section(f.get(), ".data", {0xCAFEF00D});
    ASSERT_EQ(f->save_obj(path.c_str()), 0);
    EXPECT_TRUE(errors().empty());
    EXPECT_EQ(files_in(dir), 1u);
    Elf e = parse_elf(path);
    EXPECT_EQ(e.u32(e.find(".data")->sh_offset), 0xCAFEF00Du);
    EXPECT_TRUE(f->saved());
    EXPECT_EQ(f->elf_api()->formatted_size(), e.bytes.size());
    EXPECT_EQ(f->own_state(), OFS_SAVED);
    // The saved bytes now come back from the file.
    const DATA_MAP &m = data->raw_data_nocheck();
    EXPECT_EQ(m.file(), f->file_handle());
    m.set_cursor(0);
    EXPECT_EQ(m.UINT32_read(), 0xCAFEF00Du);

    // Devices are written in place.
    auto g = make_elf();
    EXPECT_EQ(g->save_obj("/dev/null"), 0);
    EXPECT_TRUE(errors().empty());
}

}  // namespace
}  // namespace ofe_test
