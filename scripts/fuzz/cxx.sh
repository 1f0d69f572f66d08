#!/bin/sh
# Compiler for the fuzz build: AFL++'s instrumenting clang. The tree is kept
# warning-free under g++, not clang, so -Wno-error comes last and wins over the
# project's -Werror; compat.h fills in what clang 14 lacks for libstdc++ 12.
here=$(cd "$(dirname "$0")" && pwd)
exec afl-clang-fast++ -include "$here/compat.h" "$@" -Wno-error
