#include "support/support_msg.h"

#include <cstdarg>
#include <cstdio>

#include "support/diagnostic.h"

void support_apperror(const char *fmt, ...)
{
    char text[1024];
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(text, sizeof text, fmt, ap);
    va_end(ap);
    get_umsg_obj()->apperror("%s", text);
}
