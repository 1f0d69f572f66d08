JOBS ?= $(shell nproc)
# Warnings fail the build only in the trees that check it; a plain build
# keeps going on a compiler's new warning.
WERROR ?= OFF

.PHONY: all setup build build-asan check example clean

all: build

setup:
	@sh scripts/setup.sh

build: setup
	cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZQ_WERROR=$(WERROR) >/dev/null
	ninja -C build -j $(JOBS)

build-asan: setup
	cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZQ_SANITIZE=ON -DZQ_WERROR=$(WERROR) >/dev/null
	ninja -C build-asan -j $(JOBS)

check: WERROR = ON
check: build build-asan
	cd build && ctest --output-on-failure -j $(JOBS)
	cd build-asan && ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

example: build
	sh example/run.sh build/zqasm

clean:
	rm -rf build build-asan
