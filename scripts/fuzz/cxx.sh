#!/bin/sh
# Compiler for the fuzz build: AFL++'s instrumenting clang. -Wno-error comes
# last, so a warning clang has and g++ hasn't never stops a campaign.
exec afl-clang-fast++ "$@" -Wno-error
