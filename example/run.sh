#!/bin/sh
# Assembles the bundled example and shows what came out.
set -e
ZQASM=${1:-build/zqasm}
OUT=build/example
mkdir -p "$OUT"
"$ZQASM" example/example.asm "$OUT/example.obj"
echo "== $OUT/example.obj"
arm-none-eabi-readelf -h -S -s -W "$OUT/example.obj"
echo "== section contents"
arm-none-eabi-objdump -s "$OUT/example.obj"
