#include "ofe_test_util.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace ofe_test {

using namespace OFE;

std::vector<LoggedError> &errors()
{
    static std::vector<LoggedError> log;
    return log;
}

void clear_errors() { errors().clear(); }

bool has_error(int code, const std::string &text_part)
{
    for (const auto &e : errors())
        if (e.code == code && e.text.find(text_part) != std::string::npos) return true;
    return false;
}

void record_error(OBJECT_FILE *f, OF_ERROR_CODE code, const char *text)
{
    errors().push_back({code, text ? text : ""});
    f->clear_error();
}

std::unique_ptr<OBJECT_FILE> make_elf(bool big_endian, const char *producer)
{
    clear_errors();
    std::unique_ptr<OBJECT_FILE> f(
        OBJECT_FILE::new_OBJECT_FILE(OFF_ELF, OFV_ELF1, OFC_32, OFM_ARM, nullptr, "test.obj"));
    if (!f) throw std::runtime_error("no ELF object");
    f->set_machine_endian(big_endian ? OFE_BIG : OFE_LITTLE);
    if (producer) f->set_producer(producer, 1, 2, 3);
    f->set_error_handler(record_error);
    f->elf_api()->elf_symbol_table()->set_default_visibility(STV_HIDDEN);
    return f;
}

OF_SECTION *new_section(OBJECT_FILE *f, const char *name, std::initializer_list<uint32_t> words)
{
    OF_SECTION *s = f->section_table()->new_section(name);
    for (uint32_t w : words) s->raw_data().UINT32_write(w);
    return s;
}

OF_SYMBOL *new_symbol(OBJECT_FILE *f, const char *name, OF_SECTION *section)
{
    OF_SYMBOL *s = f->symbol_table()->new_symbol();
    s->set_name(name);
    if (section) s->set_section(section);
    return s;
}

OF_RELOC *new_reloc(OBJECT_FILE *f, OF_SECTION *s, unsigned type, OF_SYMBOL *sym, uint64_t offset)
{
    OF_RELOC *r = s->new_reloc(f->reloc_type(type)->is_rela());
    r->set_offset(offset);
    r->set_type(f->reloc_type(type));
    if (sym) r->set_symbol(sym);
    return r;
}

namespace {

// One directory per run, removed at exit.
struct TempDir {
    std::string path;
    TempDir()
    {
        std::string base = std::string(ZQ_BINARY_DIR) + "/ofe_test_tmp";
        std::filesystem::create_directories(base);
        path = base + "/run." + std::to_string(getpid());
        std::filesystem::create_directories(path);
    }
    ~TempDir()
    {
        std::error_code ec;
        if (!std::getenv("ZQ_KEEP_TEST_FILES")) std::filesystem::remove_all(path, ec);
    }
};

}  // namespace

std::string temp_path(const std::string &name)
{
    static TempDir dir;
    return dir.path + "/" + name;
}

std::vector<unsigned char> read_file(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void write_file(const std::string &path, const std::string &contents)
{
    std::ofstream out(path, std::ios::binary);
    out << contents;
}

RunResult run(const std::string &command)
{
    RunResult r;
    std::string err_path = temp_path("stderr." + std::to_string(rand()));
    std::string cmd = command + " 2>" + err_path;
    FILE *p = popen(cmd.c_str(), "r");
    if (!p) return r;
    char buf[4096];
    std::size_t n;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) r.out.append(buf, n);
    int status = pclose(p);
    r.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    auto err = read_file(err_path);
    r.err.assign(err.begin(), err.end());
    std::remove(err_path.c_str());
    return r;
}

// ---- ELF reader -----------------------------------------------------------------

uint32_t Elf::u32(std::size_t off) const
{
    if (off + 4 > bytes.size()) throw std::out_of_range("u32 past the end");
    const unsigned char *p = &bytes[off];
    return big ? (uint32_t{p[0]} << 24 | uint32_t{p[1]} << 16 | uint32_t{p[2]} << 8 | p[3])
               : (uint32_t{p[3]} << 24 | uint32_t{p[2]} << 16 | uint32_t{p[1]} << 8 | p[0]);
}

uint16_t Elf::u16(std::size_t off) const
{
    if (off + 2 > bytes.size()) throw std::out_of_range("u16 past the end");
    const unsigned char *p = &bytes[off];
    return static_cast<uint16_t>(big ? (p[0] << 8 | p[1]) : (p[1] << 8 | p[0]));
}

const Shdr *Elf::find(const std::string &name) const
{
    for (const auto &s : sections)
        if (s.name == name) return &s;
    return nullptr;
}

int Elf::index_of(const std::string &name) const
{
    for (std::size_t i = 0; i < sections.size(); ++i)
        if (sections[i].name == name) return static_cast<int>(i);
    return -1;
}

std::vector<unsigned char> Elf::contents(const Shdr &s) const
{
    if (s.sh_type == 8 || s.sh_size == 0) return {};
    if (s.sh_offset + s.sh_size > bytes.size()) throw std::out_of_range("section past the end");
    return {bytes.begin() + s.sh_offset, bytes.begin() + s.sh_offset + s.sh_size};
}

std::vector<std::string> Elf::section_names() const
{
    std::vector<std::string> names;
    for (const auto &s : sections) names.push_back(s.name);
    return names;
}

std::vector<Sym> Elf::symbols() const
{
    std::vector<Sym> out;
    const Shdr *symtab = find(".symtab");
    if (!symtab) return out;
    const Shdr &strtab = sections.at(symtab->sh_link);
    for (uint32_t off = symtab->sh_offset; off < symtab->sh_offset + symtab->sh_size; off += 16) {
        Sym s{"", u32(off), u32(off + 4), u32(off + 8), bytes.at(off + 12), bytes.at(off + 13), u16(off + 14)};
        s.name = reinterpret_cast<const char *>(&bytes.at(strtab.sh_offset + s.st_name));
        out.push_back(s);
    }
    return out;
}

std::vector<Rel> Elf::relocs(const Shdr &s) const
{
    std::vector<Rel> out;
    unsigned size = s.sh_type == 4 ? 12 : 8;
    for (uint32_t off = s.sh_offset; off < s.sh_offset + s.sh_size; off += size)
        out.push_back({u32(off), u32(off + 4), size == 12 ? static_cast<int32_t>(u32(off + 8)) : 0});
    return out;
}

Elf parse_elf(const std::string &path)
{
    Elf e;
    e.bytes = read_file(path);
    if (e.bytes.size() < 52 || e.bytes[0] != 0x7F || e.bytes[1] != 'E') throw std::runtime_error("not ELF");
    e.big = e.bytes[5] == 2;
    const uint32_t shoff = e.u32(32), shstrndx_field = e.u16(50);
    uint32_t count = e.u16(48);
    if (count == 0 && shoff) count = e.u32(shoff + 20);  // sh_size of section 0
    for (uint32_t i = 0; i < count; ++i) {
        auto w = [&](std::size_t k) { return e.u32(shoff + std::size_t{i} * 40 + 4 * k); };
        e.sections.push_back({"", w(0), w(1), w(2), w(3), w(4), w(5), w(6), w(7), w(8), w(9)});
    }
    uint32_t shstrndx = shstrndx_field == 0xFFFF ? e.sections.at(0).sh_link : shstrndx_field;
    if (shstrndx < e.sections.size()) {
        const Shdr &names = e.sections[shstrndx];
        for (auto &s : e.sections) s.name = reinterpret_cast<const char *>(&e.bytes.at(names.sh_offset + s.sh_name));
    }
    return e;
}

Elf save_and_parse(OBJECT_FILE *f, const std::string &name)
{
    std::string path = temp_path(name);
    if (f->save_obj(path.c_str()) != 0) throw std::runtime_error("could not save " + name);
    return parse_elf(path);
}

TypicalObject build_typical(bool big_endian)
{
    TypicalObject t;
    t.file = make_elf(big_endian);
    OBJECT_FILE *f = t.file.get();
    ELF_FILE *e = f->elf_api();

    // Sections at their first mention, contents during "pass 2".
    auto section = [&](const char *name, void (OF_SECTION::*kind)(), unsigned align) {
        OF_SECTION *s = f->section_table()->new_section(name);
        s->set_allocated(true);
        (s->*kind)();
        s->set_align(align);
        return s;
    };
    t.text = section(".text", &OF_SECTION::set_exec, 4);
    // bl ext; loop: nop; movt r0, #:upper16:ext
    for (uint32_t w : {0xEBFFFFFEu, 0xE1A00000u, 0xE3400000u}) t.text->raw_data().UINT32_write(w);
    t.data = section(".data", &OF_SECTION::set_data, 4);
    t.data->raw_data().UINT32_write(0);
    t.data->raw_data().UINT16_write(0x1234);
    t.bss = section(".bss", &OF_SECTION::set_bss, 8);
    t.user = section("mysect", &OF_SECTION::set_const_data, 16);
    t.user->raw_data().string_write("hello");
    t.inl = section(".text.inl", &OF_SECTION::set_exec, 2);
    t.inl->raw_data().UINT16_write(0x4770);  // bx lr
    t.group = f->section_table()->new_section(".group");
    t.group->elf_api()->set_sh_type(SHT_GROUP);
    t.group->elf_api()->set_sh_flags(0);
    t.debug = f->section_table()->new_section(".debug_info");
    t.debug->raw_data().UINT32_write(7);

    // Relocations, in pass 2 order; their symbols are bound once all symbols exist.
    OF_RELOC *call = new_reloc(f, t.text, OFR_ARM_CALL), *movt = new_reloc(f, t.text, OFR_ARM_MOVT_ABS, nullptr, 8);
    movt->elf_api()->set_addend(0x10);
    OF_RELOC *word = new_reloc(f, t.data, OFR_RELLONG), *half = new_reloc(f, t.data, OFR_RELWORD, nullptr, 4);
    OF_RELOC *dbg = new_reloc(f, t.debug, OFR_RELLONG);

    // Symbols at the end: section symbols first, then labels and globals.
    for (OF_SECTION *s : {t.text, t.data, t.bss, t.user, t.inl, t.group, t.debug}) s->create_section_symbol()->set_value(0);
    auto symbol = [&](const char *name, OF_SECTION *s, uint64_t value, OF_SYM_BINDING binding) {
        OF_SYMBOL *y = e->elf_symbol_table()->new_symbol();
        y->set_name(name);
        if (s) y->set_section(s);
        if (value) y->set_value(value);
        y->set_binding(binding);
        return y;
    };
    t.loop = symbol("loop", t.text, 4, OFB_LOCAL);
    t.main_sym = symbol("main", t.text, 0, OFB_GLOBAL);
    t.main_sym->set_type(OFY_FUNCTION);
    t.main_sym->set_size(12);
    t.main_sym->elf_api()->set_visibility(STV_DEFAULT);
    t.weak = symbol("wk", t.data, 4, OFB_WEAK);
    t.weak->set_type(OFY_OBJECT);
    t.ext = symbol("ext", nullptr, 0, OFB_GLOBAL);
    t.ext->set_kind(OFK_UNDEFINED);
    t.ext->elf_api()->set_visibility(STV_DEFAULT);
    t.common = symbol("cmn", nullptr, 0, OFB_GLOBAL);
    t.common->set_kind(OFK_COMMON);
    t.common->set_value(4);
    t.common->set_size(8);
    t.common->set_type(OFY_OBJECT);
    t.inl_sym = symbol(".text.inl", t.inl, 0, OFB_GLOBAL);
    t.inl_sym->set_type(OFY_FUNCTION);
    e->symalias_table(true)->add_alias(t.weak->id(), t.main_sym->id());

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
