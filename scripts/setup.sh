#!/bin/sh
# Installs the build and test tools that are missing; does nothing when all are present.
set -e
pkgs="cmake ninja-build g++ libboost-dev libgtest-dev binutils-arm-none-eabi llvm make
  gcc-arm-linux-gnueabihf qemu-user python3"
missing=""
for p in $pkgs; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
  echo "Installing:$missing"
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO=sudo
  $SUDO apt-get update -q
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -q $missing
fi
