# The front door. Every target first installs what it needs and is missing (tools/setup.sh); the work is CMake's.

PREFIX ?= /usr/local
DESTDIR ?=
PRESET ?= x86_64

JOBS := $(shell nproc)
FORMATTED = $(shell find include src tests bench examples \( -name '*.[ch]' -o -name '*.[ch]pp' \) ! -path include/zelm.h)

.PHONY: build demo test bench install header format check-format clean

build: ## both libraries, for x86-64 and i386
	@tools/setup.sh build
	cmake --preset x86_64 && cmake --build --preset x86_64 -j $(JOBS) --target zelmp8
	cmake --preset i386 && cmake --build --preset i386 -j $(JOBS) --target zelmp8

demo: ## fits the terrain of a real elevation grid
	@tools/setup.sh build demo
	cmake --preset x86_64 && cmake --build --preset x86_64 -j $(JOBS) --target terrain
	build/x86_64/bin/terrain -o build/terrain.png --view build/view.png --curvature build/curvature.png \
	  examples/data/jacksboro.asc

test: ## all tests on both builds, and under the sanitizers
	@tools/setup.sh build test demo
	tools/test.sh

bench: ## times every built family against its rivals; FAMILY=LUDecomp for some
	@tools/setup.sh build bench
	cmake --preset x86_64 && cmake --build --preset x86_64 -j $(JOBS) --target zelm_bench
	build/x86_64/bin/zelm_bench $(FAMILY)

install: ## PREFIX, DESTDIR; PRESET=i386 for the 32-bit library
	@tools/setup.sh build
	cmake --preset $(PRESET) && cmake --build --preset $(PRESET) -j $(JOBS) --target zelmp8
	DESTDIR=$(DESTDIR) cmake --install build/$(PRESET) --prefix $(PREFIX)
	@if [ -z "$(DESTDIR)" ] && [ "$$(id -u)" = 0 ]; then ldconfig; fi

header: ## brings include/zelm.h up to what the catalog gives
	@tools/setup.sh build
	cmake --preset x86_64 && cmake --build --preset x86_64 --target header

format:
	@tools/setup.sh format
	clang-format -i $(FORMATTED)

check-format:
	@tools/setup.sh format
	@clang-format --dry-run -Werror $(FORMATTED)

clean:
	rm -rf build
