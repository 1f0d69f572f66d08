// The neutral model: error channel, lifecycle, string tables, lookups,
// deletion and renumbering; the relocation vocabulary.
#include <gtest/gtest.h>

#include <cstring>
#include <set>

#include "ofe_test_util.h"

namespace ofe_test {
namespace {

using namespace OFE;

std::unique_ptr<OBJECT_FILE> bare_elf()
{
    return std::unique_ptr<OBJECT_FILE>(
        OBJECT_FILE::new_OBJECT_FILE(OFF_ELF, OFV_ELF1, OFC_32, OFM_ARM, nullptr, "bare.obj"));
}

TEST(ErrorChannel, PendingErrorsWithoutHandler)
{
    auto f = bare_elf();
    // A serious error stays; soft ones give way to anything but their like.
    // A step without text clears the pending error.
    const struct { OF_ERROR_CODE code; const char *text; int pending_code; const char *pending_text; } steps[] = {
        {OFERR_CORRUPTED, "first", 3, "first"},    {OFERR_ILLEGAL_OP, "second", 3, "first"},
        {OFERR_WARNING, "w", 3, "first"},          {OFERR_NONE, nullptr, 0, ""},
        {OFERR_WARNING, "w1", 4, "w1"},            {OFERR_TRUNCATED, "t", 4, "w1"},
        {OFERR_WARNING, "w2", 4, "w1"},            {OFERR_DEVELOPMENT, "d", 8, "d"},
        {OFERR_DEVELOPMENT, "d2", 8, "d"},         {OFERR_WARNING, "w3", 8, "d"},
        {OFERR_INTERNAL, "serious", 7, "serious"}, {OFERR_WARNING, "w4", 7, "serious"},
    };
    for (const auto &s : steps) {
        if (s.text) f->set_error(s.code, "%s", s.text);
        else f->clear_error();
        EXPECT_EQ(f->error_code(), s.pending_code) << s.text;
        EXPECT_STREQ(f->error_message(), s.pending_text) << s.text;
    }
    // The handler gets the pending error when it is installed.
    clear_errors();
    f->set_error_handler(record_error);
    ASSERT_EQ(errors().size(), 1u);
    EXPECT_TRUE(has_error(7, "serious"));
    EXPECT_EQ(f->error_code(), OFERR_NONE);
}

TEST(ErrorChannel, LongMessagesAndHandlerThatKeepsTheError)
{
    clear_errors();
    auto f = bare_elf();
    f->set_error_handler(record_error);
    std::string long_text(5000, 'x');
    f->set_error(OFERR_ILLEGAL_OP, "%s", long_text.c_str());
    ASSERT_EQ(errors().size(), 1u);
    EXPECT_EQ(errors()[0].text, long_text.substr(0, 4094));

    static int calls;
    calls = 0;
    f->set_error_handler([](OBJECT_FILE *, OF_ERROR_CODE, const char *) { ++calls; });
    f->set_error(OFERR_CORRUPTED, "a");
    f->set_error(OFERR_ILLEGAL_OP, "b");  // the kept error is offered again, the new one dropped
    EXPECT_EQ(calls, 2);
    EXPECT_STREQ(f->error_message(), "a");
}

struct Stepper : OF_STATE_MACHINE {
    explicit Stepper(OBJECT_FILE *f) : OF_STATE_MACHINE(f) {}
    int progress_to_state(OF_STATE s) override
    {
        seen.emplace_back(s, state());
        return s == fail_at ? -1 : 0;
    }
    int revert_to_state(OF_STATE) override { return 0; }
    std::vector<std::pair<OF_STATE, OF_STATE>> seen;
    int fail_at = -1;
};

TEST(Lifecycle, WalksForwardOneStateAtATime)
{
    clear_errors();
    auto f = bare_elf();
    f->set_error_handler(record_error);
    Stepper s(f.get());
    EXPECT_EQ(s.set_state(OFS_OPEN), 0);
    EXPECT_TRUE(s.seen.empty());
    EXPECT_EQ(s.set_state(OFS_FORMATTED), 0);
    // Both steps run while the object still reads as open.
    std::vector<std::pair<OF_STATE, OF_STATE>> want = {{OFS_LOCKED, OFS_OPEN}, {OFS_FORMATTED, OFS_OPEN}};
    EXPECT_EQ(s.seen, want);
    EXPECT_EQ(s.state(), OFS_FORMATTED);
    EXPECT_EQ(s.set_state(OFS_FORMATTED), 0);
    EXPECT_TRUE(errors().empty());

    EXPECT_EQ(s.set_state(OFS_LOCKED), -1);
    EXPECT_TRUE(has_error(5, "this OBJECT_FILE object is currently in the formatted state, and cannot revert "
                             "to the locked state to perform the requested operation "));
    EXPECT_EQ(s.max_state(OFS_LOCKED), -1);
    EXPECT_TRUE(has_error(5, "must be in at most the locked state"));
    EXPECT_EQ(s.min_state(OFS_SAVED), -1);
    EXPECT_TRUE(has_error(5, "must be in at least the saved state"));

    Stepper failing(f.get());
    failing.fail_at = OFS_FORMATTED;
    clear_errors();
    EXPECT_EQ(failing.set_state(OFS_SAVED), -1);
    EXPECT_EQ(failing.own_state(), OFS_OPEN);
    EXPECT_TRUE(has_error(7, "an error was encountered while progressing an OBJECT_FILE object from the locked "
                             "to the formatted state"));
}

TEST(Lifecycle, GuardsAfterSavingReportAndCarryOn)
{
    auto f = make_elf();
    OF_SECTION *text = f->section_table()->new_section(".text");
    OF_SYMBOL *sym = new_symbol(f.get(), "s");
    ASSERT_EQ(f->save_obj(temp_path("guards.o").c_str()), 0);
    EXPECT_TRUE(errors().empty());
    // Sections made while locking come last, in order.
    unsigned n = f->section_table()->scnnum();
    EXPECT_STREQ(f->section_table()->section(n - 2)->name(), ".strtab");
    EXPECT_STREQ(f->section_table()->section(n - 1)->name(), ".shstrtab");

    text->set_name(".text2");
    EXPECT_TRUE(has_error(5, "currently in the saved state, and must be in at most the locked state"));
    EXPECT_STREQ(text->name(), ".text2");
    clear_errors();
    sym->set_value(3);
    EXPECT_TRUE(has_error(5, "must be in at most the locked state"));
    EXPECT_EQ(sym->value(), 3u);
    EXPECT_EQ(text->raw_data().size(), 0u);
}

TEST(StringTable, WholeStringsOnly)
{
    auto f = make_elf();
    auto *s = static_cast<ELF_SECTION *>(f->section_table()->new_section(".strtab"));
    ELF_STRING_TABLE *t = s->string_table_api();
    ASSERT_NE(t, nullptr);
    uint32_t off = 99;
    EXPECT_FALSE(t->find_string("x", off));
    EXPECT_EQ(t->add_string(""), 0u);
    EXPECT_EQ(t->add_string("abc"), 1u);
    EXPECT_EQ(t->add_string("abc"), 1u);
    EXPECT_EQ(t->add_string("bc"), 5u);  // not shared as the tail of "abc"
    EXPECT_EQ(t->add_string(""), 0u);
    EXPECT_TRUE(t->find_string("bc", off));
    EXPECT_EQ(off, 5u);
    EXPECT_STREQ(t->get_string(1), "abc");
    EXPECT_EQ(t->get_string(8), nullptr);
    t->clear();
    EXPECT_EQ(s->raw_data().size(), 1u);  // the empty string stays

    // A table read back from its bytes.
    DATA_MAP bytes;
    const unsigned char raw[] = {'x', 0, 0, 'b', 0};
    bytes.set_data(raw, sizeof raw);
    OF_STRING_TABLE_MANAGER m(&bytes);
    EXPECT_EQ(m.add_string("b"), 3u);
    EXPECT_EQ(m.add_string(""), 2u);
    EXPECT_EQ(m.add_string("y"), 5u);
    EXPECT_EQ(bytes.size(), 7u);
}

TEST(SectionTable, LookupsAndSpecialSections)
{
    auto f = make_elf();
    ELF_SECTION_TABLE *t = f->elf_api()->elf_section_table();
    unsigned n = t->scnnum();
    EXPECT_EQ(t->section(n), nullptr);
    EXPECT_EQ(t->section_name(".symtab", n), nullptr);
    EXPECT_EQ(t->section_name(".symtab", 0), t->section(1));
    struct Case { const char *name, *row; };
    for (Case c : {Case{".text:foo", ".text"}, Case{".text.foo", ".text"}, Case{".rel.text", ".rel"},
                   Case{".rela.text", ".rela"}, Case{".debug_info", ".debug"}, Case{".data1", ".data1"},
                   Case{"x_shndx", ".symtab_shndx"}, Case{".ARM.exidx.f", ".ARM.exidx"}, Case{"zzz", nullptr},
                   Case{".tex", nullptr}}) {
        const ELF_SPECIAL_SECTION *row = t->special_section(c.name);
        if (c.row) {
            ASSERT_NE(row, nullptr) << c.name;
            EXPECT_STREQ(row->name, c.row) << c.name;
        } else {
            EXPECT_EQ(row, nullptr) << c.name;
        }
    }
    auto *attrs = t->new_elf_section("__ZQ_build_attributes");
    EXPECT_STREQ(attrs->name(), ".ARM.attributes");
    EXPECT_EQ(attrs->sh_type(), SHT_ARM_ATTRIBUTES);
    EXPECT_TRUE(attrs->is_build_attr());
    auto *dbg = t->new_elf_section(".debug_line");
    EXPECT_FALSE(dbg->allocated());
    EXPECT_EQ(dbg->unit_size(), 8u);
    auto *tbss = t->new_elf_section(".tbss");
    EXPECT_EQ(tbss->sh_flags(), 0x403u);
    EXPECT_TRUE(tbss->bss());
    auto *text = t->new_elf_section(".text");
    text->set_data();
    EXPECT_EQ(text->sh_flags(), SHF_ALLOC | SHF_WRITE);
    text->set_exec();
    EXPECT_EQ(text->sh_flags(), SHF_ALLOC | SHF_EXECINSTR);
    EXPECT_TRUE(errors().empty());
    text->set_bss();
    text->raw_data();
    EXPECT_TRUE(has_error(4, "accessing the raw data of section \".text\" which is uninitialized"));
}

TEST(Relocations, SortKeepsCreationOrderAtEqualOffsets)
{
    auto f = make_elf();
    OF_SECTION *text = new_section(f.get(), ".text", {0, 0});
    OF_SYMBOL *sym = text->create_section_symbol();
    const unsigned types[] = {OFR_ARM_MOVW_ABS_NC, OFR_RELLONG, OFR_ARM_CALL, OFR_ARM_V4BX};
    const uint64_t offsets[] = {4, 4, 0, 4};
    for (int i = 0; i < 4; ++i) new_reloc(f.get(), text, types[i], sym, offsets[i]);
    text->new_reloc(false)->set_type(nullptr);  // one the format can't express is dropped
    Elf e = save_and_parse(f.get(), "sorted.o");
    auto rels = e.relocs(*e.find(".rel.text"));
    ASSERT_EQ(rels.size(), 4u);
    const uint32_t want[][2] = {{0, 28}, {4, 43}, {4, 2}, {4, 40}};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(std::make_pair(rels[i].offset, rels[i].info & 0xFF), std::make_pair(want[i][0], want[i][1]));
    EXPECT_EQ(text->reloc_table(0)->relnum(), 4u);
    EXPECT_EQ(text->reloc_table(0)->reloc(1)->type()->number(), 43u);
}

TEST(Deletion, SectionsAndSymbolsAreRenumbered)
{
    auto f = make_elf();
    OF_SECTION_TABLE *t = f->section_table();
    OF_SECTION *gone = new_section(f.get(), ".text"), *kept = new_section(f.get(), ".data");
    OF_SYMBOL_TABLE *st = f->symbol_table();
    OF_SYMBOL *a = new_symbol(f.get(), "a", gone), *b = new_symbol(f.get(), "b"), *c = new_symbol(f.get(), "c", kept);
    c->set_binding(OFB_GLOBAL);
    OF_RELOC *in_gone = new_reloc(f.get(), gone, OFR_RELLONG), *in_kept = new_reloc(f.get(), kept, OFR_RELLONG, c);
    unsigned gone_id = gone->id();
    unsigned rel_id = in_gone->table()->section()->id();

    t->delete_section(gone_id);
    EXPECT_STREQ(t->section(gone_id)->name(), "__ZQ_deleted_section");
    EXPECT_TRUE(t->section(rel_id)->is_deleted());
    st->delete_symbol(b->id());
    EXPECT_EQ(st->symbol(2), nullptr);
    st->purge_deleted_symbols();
    EXPECT_EQ(c->id(), 2u);
    EXPECT_EQ(in_kept->sym_id(), 2u);
    t->purge_deleted_sections();
    EXPECT_EQ(kept->id(), 2u);
    EXPECT_EQ(c->section_id(), 2u);
    EXPECT_EQ(a->kind(), OFK_UNDEFINED);

    Elf e = save_and_parse(f.get(), "deleted.o");
    EXPECT_EQ(e.index_of(".text"), -1);
    EXPECT_EQ(e.index_of(".rel.text"), -1);
    auto syms = e.symbols();
    ASSERT_EQ(syms.size(), 3u);
    EXPECT_EQ(syms[1].name, "a");
    EXPECT_EQ(syms[1].st_shndx, 0);
    EXPECT_EQ(syms[2].name, "c");
    EXPECT_EQ(syms[2].st_shndx, e.index_of(".data"));
    EXPECT_EQ(e.relocs(*e.find(".rel.data"))[0].info >> 8, 2u);
    EXPECT_TRUE(errors().empty());
}

TEST(Symbols, KindsBindingsAndRefusals)
{
    auto f = make_elf();
    auto *s = f->elf_api()->elf_symbol_table()->new_elf_symbol();
    EXPECT_EQ(s->kind(), OFK_UNDEFINED);
    EXPECT_EQ(s->st_other(), STV_HIDDEN);
    s->set_kind(OFK_ABSOLUTE);
    EXPECT_EQ(s->st_shndx(), SHN_ABS);
    EXPECT_EQ(s->kind(), OFK_ABSOLUTE);
    s->set_section_id(0x10000);
    EXPECT_EQ(s->st_shndx(), SHN_XINDEX);
    EXPECT_EQ(s->section_id(), 0x10000u);
    EXPECT_TRUE(s->refs_section());
    EXPECT_EQ(s->kind(), OFK_DEFINED);
    s->set_section_id(5);
    EXPECT_EQ(s->st_shndx(), 5);
    EXPECT_EQ(s->extended_index(), 0u);
    EXPECT_TRUE(errors().empty());

    s->set_kind(OFK_DEFINED);
    EXPECT_TRUE(has_error(5, "To mark a symbol as being defined, you must use set_section_id() to set its section "
                             "reference"));
    s->set_kind(static_cast<OF_SYM_KIND>(9));
    EXPECT_TRUE(has_error(5, "Invalid symbol kind 9"));
    s->set_binding(static_cast<OF_SYM_BINDING>(7));
    EXPECT_TRUE(has_error(5, "Invalid symbol binding value 0x7"));
    s->set_type(static_cast<OF_SYM_TYPE>(9));
    EXPECT_TRUE(has_error(5, "Invalid symbol type value 0x9"));
    s->set_near_common();
    EXPECT_TRUE(has_error(7, "symbol does not support setting near-common"));
    EXPECT_EQ(s->st_shndx(), 5);
    s->set_binding(OFB_WEAK);
    s->set_type(OFY_TLS);
    EXPECT_EQ(s->st_info(), 0x26);
    EXPECT_EQ(s->binding(), OFB_WEAK);
}

TEST(Symbols, LockedChangesReachTheRawBytes)
{
    auto f = make_elf();
    OF_SECTION *text = new_section(f.get(), ".text");
    OF_SYMBOL *s = new_symbol(f.get(), "s", text);
    OF_RELOC *r = new_reloc(f.get(), text, OFR_RELLONG, s);
    ASSERT_EQ(f->set_state(OFS_LOCKED), 0);
    EXPECT_EQ(f->own_state(), OFS_LOCKED);
    s->set_value(0x99);
    r->set_offset(0x44);
    const DATA_MAP &symtab = f->elf_api()->symtab_section(false)->raw_data_nocheck();
    symtab.set_cursor(s->id() * 16 + 4);
    EXPECT_EQ(symtab.UINT32_read(), 0x99u);
    const DATA_MAP &rel = r->table()->section()->raw_data_nocheck();
    rel.set_cursor(0);
    EXPECT_EQ(rel.UINT32_read(), 0x44u);
    Elf e = save_and_parse(f.get(), "locked.o");
    EXPECT_EQ(e.symbols()[1].st_value, 0x99u);
    EXPECT_EQ(e.relocs(*e.find(".rel.text"))[0].offset, 0x44u);
    EXPECT_TRUE(errors().empty());
}

// The EABI version in e_flags and the size summary are checked through the
// directives' tests and tests/asm/object.
TEST(MachineDb, VendorSectionFlags)
{
    auto f = make_elf();
    OF_MACHINE_DB *db = f->machine_db();
    OF_SECTION *s = f->section_table()->new_section(".data");
    db->set_zq_sh_flag(s, ZQ_SHF_NOINIT, true);
    db->set_zq_sh_flag(s, ZQ_SHF_RETAIN, true);
    db->set_zq_sh_flag(s, ZQ_SHF_RETAIN, false);
    EXPECT_TRUE(db->is_zq_sh_flag_set(s, ZQ_SHF_NOINIT));
    EXPECT_FALSE(db->is_zq_sh_flag_set(s, ZQ_SHF_RETAIN));
    EXPECT_TRUE(errors().empty());
    db->set_zq_sh_flag(s, ZQ_SHF_RETAIN | ZQ_SHF_BOUND, true);
    EXPECT_TRUE(has_error(5, "zq_flag() called with more than one flag specified"));
    EXPECT_EQ(s->elf_api()->zq_sh_flags(), ZQ_SHF_NOINIT);

    EXPECT_EQ(OBJECT_FILE::new_OBJECT_FILE(OFF_ELF, OFV_ELF1, OFC_64, OFM_ARM, nullptr, "x"), nullptr);
}

// The ARM relocation vocabulary of ELF files.
TEST(RelocTypes, ElfTableLookups)
{
    auto f = make_elf();
    struct Case { unsigned id; const char *name; unsigned number, field_size, scale; uint32_t pc_mask; };
    for (Case c : {Case{0x31E, "R_ARM_THM_JUMP19", 51, 20, 1, ~0u}, Case{0x11E, "R_ARM_ABS32", 2, 32, 0, ~0u},
                   Case{0x300, "R_ARM_PC24", 1, 25, 1, ~0u}, Case{0x307, "R_ARM_THM_PC8", 11, 8, 2, 0xFFFFFFFCu},
                   Case{0x34D, "R_ARM_THM_ALU_ABS_G3", 135, 8, 24, ~0u}, Case{0x100, "R_ARM_NONE", 0, 0, 0, ~0u}}) {
        const OF_RELOC_TYPE *t = f->reloc_type(c.id);
        ASSERT_NE(t, nullptr);
        EXPECT_STREQ(t->name(), c.name);
        EXPECT_EQ(t->number(), c.number);
        EXPECT_EQ(t->template_id(), c.id);
        EXPECT_EQ(t->field_size(), c.field_size);
        EXPECT_EQ(t->scale(), c.scale);
        EXPECT_EQ(t->pc_mask(), c.pc_mask);
        EXPECT_EQ(f->machine_reloc_type(c.number), t);
        EXPECT_EQ(f->reloc_type(t->template_name()), t);
    }
    EXPECT_TRUE(errors().empty());
    EXPECT_EQ(f->reloc_type("OFR_ARM_THM_ABS5")->field_offset(), 6u);
    EXPECT_STREQ(f->reloc_type("OFR_NOT_THERE")->name(), "R_INVALID");

    const OF_RELOC_TYPE *bad = f->reloc_type(0x999);
    EXPECT_STREQ(bad->name(), "R_INVALID");
    EXPECT_EQ(bad->number(), 0u);
    EXPECT_EQ(bad->reloc_template(), nullptr);
    EXPECT_FALSE(bad->is_symrel());
    EXPECT_EQ(bad->pc_mask(), ~0u);
    EXPECT_TRUE(has_error(4, "relocation template 2457 not found; returning OFR_INVALID"));

    // Template-less and obsolete rows are known by number only.
    for (unsigned n : {12u, 13u, 20u, 112u, 127u, 128u}) {
        const OF_RELOC_TYPE *t = f->machine_reloc_type(n);
        ASSERT_NE(t, nullptr) << n;
        EXPECT_EQ(t->reloc_template(), nullptr) << n;
    }
    EXPECT_STREQ(f->machine_reloc_type(13)->name(), "R_ARM_SWI24");
    EXPECT_EQ(f->machine_reloc_type(13)->template_id(), 1u);
    EXPECT_EQ(f->machine_reloc_type(136), nullptr);
}

TEST(RelocTypes, WholeTableShape)
{
    auto f = make_elf();
    std::set<std::string> rela, symrel_missing;
    unsigned rows = 0, templated = 0;
    for (unsigned n = 0; n < 256; ++n) {
        const OF_RELOC_TYPE *t = f->machine_reloc_type(n);
        if (!t) continue;
        ++rows;
        if (!t->reloc_template()) continue;
        ++templated;
        if (t->is_rela()) rela.insert(t->name());
        if (!t->is_symrel() && !t->is_marker()) symrel_missing.insert(t->name());
        EXPECT_EQ(f->reloc_type(t->template_id()), t);
    }
    EXPECT_EQ(rows, 129u);
    EXPECT_EQ(templated, 82u);
    EXPECT_EQ(rela, (std::set<std::string>{"R_ARM_MOVT_ABS", "R_ARM_THM_MOVT_ABS", "R_ARM_THM_ALU_ABS_G3"}));
    EXPECT_TRUE(symrel_missing.empty());
    EXPECT_TRUE(f->reloc_type(OFR_ARM_CALL)->is_pcrel());
    EXPECT_TRUE(f->reloc_type(OFR_PCRLONG)->is_pcrel());
}

}  // namespace
}  // namespace ofe_test
