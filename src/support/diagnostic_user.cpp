// USER_MSG: the reporting front of shared code.  Each form formats the
// caller's text and hands it to a generic row whose format is "%s".
#include <string>

#include "support/diagnostic.h"

namespace {
template <typename D>
void say(const DIAG_SRCINFO *pos, const char *fmt, va_list ap)
{
    std::string text = DIAG_vformat(fmt, ap);
    D d;
    if (pos) d.set_srcinfo(*pos);
    d.print_header();
    d.print(d.row()->format, text.c_str());
    d.flush();
}
}  // namespace

USER_MSG *get_umsg_obj()
{
    static USER_MSG the_one;
    return &the_one;
}

unsigned USER_MSG::get_error_count() const { return DIAGNOSTIC::error_count_m; }

// Every form formats the caller's text, then prints it through its row.
void USER_MSG::debug(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gdebug>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::debug(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gdebug>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::remark(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gremark>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::remark(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gremark>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::advice(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gadvice>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::advice(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gadvice>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::warning(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gwarning>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::warning(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gwarning>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::error(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gerror>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::error(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gerror>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::apperror(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gapperror>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::apperror(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gapperror>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::fatal(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gfatal>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::fatal(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gfatal>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::die(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gdie>(nullptr, fmt, ap);
    va_end(ap);
}

void USER_MSG::die(const DIAG_SRCINFO &pos, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    say<DIAG::gdie>(&pos, fmt, ap);
    va_end(ap);
}

void USER_MSG::warning(int n, const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    if (n && emit_warnings_as_errors)
        say<DIAG::gerror>(nullptr, fmt, ap);
    else
        say<DIAG::gwarning>(nullptr, fmt, ap);
    va_end(ap);
}
