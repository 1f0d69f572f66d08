#include "typical_object.h"

namespace ofe_test {

using namespace OFE;

TypicalObject build_typical(bool big_endian)
{
    TypicalObject t;
    t.file = make_elf(big_endian);
    OBJECT_FILE *f = t.file.get();
    ELF_FILE *e = f->elf_api();
    OF_SECTION_TABLE *st = f->section_table();

    // Sections at their first mention, contents during "pass 2".
    t.text = st->new_section(".text");
    t.text->set_allocated(true);
    t.text->set_exec();
    t.text->set_align(4);
    DATA_MAP &code = t.text->raw_data();
    code.UINT32_write(0xEBFFFFFE);  // bl ext
    code.UINT32_write(0xE1A00000);  // loop: nop
    code.UINT32_write(0xE3400000);  // movt r0, #:upper16:ext

    t.data = st->new_section(".data");
    t.data->set_allocated(true);
    t.data->set_data();
    t.data->set_align(4);
    t.data->raw_data().UINT32_write(0);
    t.data->raw_data().UINT16_write(0x1234);

    t.bss = st->new_section(".bss");
    t.bss->set_allocated(true);
    t.bss->set_bss();
    t.bss->set_align(8);

    t.user = st->new_section("mysect");
    t.user->set_allocated(true);
    t.user->set_const_data();
    t.user->set_align(16);
    t.user->raw_data().string_write("hello");

    t.inl = st->new_section(".text.inl");
    t.inl->set_allocated(true);
    t.inl->set_exec();
    t.inl->set_align(2);
    t.inl->raw_data().UINT16_write(0x4770);  // bx lr

    t.group = st->new_section(".group");
    t.group->elf_api()->set_sh_type(SHT_GROUP);
    t.group->elf_api()->set_sh_flags(0);

    t.debug = st->new_section(".debug_info");
    t.debug->raw_data().UINT32_write(7);

    // Relocations, in pass 2 order.
    OF_RELOC *call = t.text->new_reloc(false);
    call->set_offset(0);
    call->set_type(f->reloc_type(OFR_ARM_CALL));
    OF_RELOC *movt = t.text->new_reloc(f->reloc_type(OFR_ARM_MOVT_ABS)->is_rela());
    movt->set_offset(8);
    movt->set_type(f->reloc_type(OFR_ARM_MOVT_ABS));
    movt->elf_api()->set_addend(0x10);
    OF_RELOC *word = t.data->new_reloc(false);
    word->set_offset(0);
    word->set_type(f->reloc_type(OFR_RELLONG));
    OF_RELOC *half = t.data->new_reloc(false);
    half->set_offset(4);
    half->set_type(f->reloc_type(OFR_RELWORD));
    OF_RELOC *dbg = t.debug->new_reloc(false);
    dbg->set_offset(0);
    dbg->set_type(f->reloc_type(OFR_RELLONG));

    // Symbols at the end: section symbols first, then labels and globals.
    for (OF_SECTION *s : {t.text, t.data, t.bss, t.user, t.inl, t.group, t.debug}) s->create_section_symbol()->set_value(0);
    t.loop = e->elf_symbol_table()->new_symbol();
    t.loop->set_name("loop");
    t.loop->set_value(4);
    t.loop->set_section(t.text);
    t.loop->set_binding(OFB_LOCAL);
    t.main_sym = e->elf_symbol_table()->new_symbol();
    t.main_sym->set_name("main");
    t.main_sym->set_section(t.text);
    t.main_sym->set_binding(OFB_GLOBAL);
    t.main_sym->set_type(OFY_FUNCTION);
    t.main_sym->set_size(12);
    t.main_sym->elf_api()->set_visibility(STV_DEFAULT);
    t.weak = e->elf_symbol_table()->new_symbol();
    t.weak->set_name("wk");
    t.weak->set_section(t.data);
    t.weak->set_value(4);
    t.weak->set_binding(OFB_WEAK);
    t.weak->set_type(OFY_OBJECT);
    t.ext = e->elf_symbol_table()->new_symbol();
    t.ext->set_name("ext");
    t.ext->set_kind(OFK_UNDEFINED);
    t.ext->set_binding(OFB_GLOBAL);
    t.ext->elf_api()->set_visibility(STV_DEFAULT);
    t.common = e->elf_symbol_table()->new_symbol();
    t.common->set_name("cmn");
    t.common->set_kind(OFK_COMMON);
    t.common->set_value(4);
    t.common->set_size(8);
    t.common->set_binding(OFB_GLOBAL);
    t.common->set_type(OFY_OBJECT);
    t.inl_sym = e->elf_symbol_table()->new_symbol();
    t.inl_sym->set_name(".text.inl");
    t.inl_sym->set_section(t.inl);
    t.inl_sym->set_binding(OFB_GLOBAL);
    t.inl_sym->set_type(OFY_FUNCTION);

    e->symalias_table(true)->add_alias(t.weak->id(), t.main_sym->id());

    // Relocation symbols are bound once all symbols exist.
    call->set_symbol(t.ext);
    movt->set_symbol(t.ext);
    word->set_symbol(t.main_sym);
    half->set_symbol(t.loop);
    dbg->set_symbol(t.text->symbol());

    t.bss->set_size(16);
    OF_GROUP_TABLE *g = t.group->group_api();
    g->set_comdat_flag();
    g->add_member(t.inl);
    g->set_symbol(t.inl_sym);

    f->machine_db()->set_zq_sh_flag(t.user, ZQ_SHF_RETAIN, true);
    return t;
}

}  // namespace ofe_test
