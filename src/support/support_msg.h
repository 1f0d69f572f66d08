#pragma once
// How the support library reports misuse and failed calls: as application
// errors of the shared message machinery. The run goes on.
void support_apperror(const char *fmt, ...) __attribute__((format(printf, 1, 2)));
