# The two commands of the README: `make run` and `make test`.
# Both install whatever Debian packages are missing, then configure and build with CMake and Ninja.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)

.PHONY: run test build deps bench differential clean test-sanitized install package format format-check

run: build
	@scripts/run.sh $(BUILD_DIR)

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

# The whole suite again, built with AddressSanitizer and UndefinedBehaviorSanitizer: only the
# test programs and what they run (swale_tests), not the window program, the demos or the tools.
# Leaks inside Qt's platform and font libraries are not ours: tests/sanitizers/lsan.supp names them.
# -g1 keeps the line tables the sanitizers' stack traces need and compiles a third faster than -g.
SAN_BUILD_DIR ?= build-asan
test-sanitized: deps
	@if [ ! -f $(SAN_BUILD_DIR)/build.ninja ]; then \
	    cmake -S . -B $(SAN_BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g1 \
	        -DSWALE_SANITIZE=ON; fi
	cmake --build $(SAN_BUILD_DIR) -j $(JOBS) --target swale_tests
	cd $(SAN_BUILD_DIR) && \
	    ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	    LSAN_OPTIONS=suppressions=$(CURDIR)/tests/sanitizers/lsan.supp:print_suppressions=0 \
	    UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
	    ctest --output-on-failure -j $(JOBS) -E staged_install

bench: build
	$(BUILD_DIR)/bin/swale-bench --benchmark_min_time=0.2

# `make install` puts the programs in $(PREFIX)/bin and their data in $(PREFIX)/share/swale
# (DESTDIR stages it elsewhere); `make package` builds the Debian package in $(BUILD_DIR).
PREFIX ?= /usr/local
install: build
	cmake --install $(BUILD_DIR) --prefix $(PREFIX)

package: build
	cd $(BUILD_DIR) && cpack -G DEB

# The differential test of the calculation core at full size (100,000 projects, every float).
differential: deps
	scripts/differential.sh $(BUILD_DIR)

build: deps
	@if [ ! -f $(BUILD_DIR)/build.ninja ]; then cmake -S . -B $(BUILD_DIR) -G Ninja; fi
	cmake --build $(BUILD_DIR) -j $(JOBS)

deps:
	@scripts/install-deps.sh

clean:
	rm -rf $(BUILD_DIR)

# libFuzzer targets (clang with sanitizers) in their own build folder, each run FUZZ_TIME seconds.
FUZZ_TIME ?= 45
FUZZ_BUILD_DIR ?= build-fuzz

.PHONY: fuzz
fuzz:
	FUZZ_TIME=$(FUZZ_TIME) JOBS=$(JOBS) scripts/run-fuzzers.sh $(FUZZ_BUILD_DIR)

# The tree is kept formatted by the committed .clang-format (Qt's style).
CLANG_FORMAT ?= clang-format-14
format-check: deps
	git ls-files '*.cpp' '*.h' | xargs $(CLANG_FORMAT) --dry-run --Werror

format: deps
	git ls-files '*.cpp' '*.h' | xargs $(CLANG_FORMAT) -i
