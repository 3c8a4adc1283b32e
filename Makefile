# The front door. Each target installs what is missing (tools/packages.sh), configures its preset, builds and runs.
JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
# Debian's own, which the packages of tools/packages.sh belong to.
PYTHON ?= $(firstword $(wildcard /usr/bin/python3) python3)

.PHONY: help demo check check-windows check-sanitizers check-all docs gallery bench picture format tidy install clean

help:
	@echo 'make demo       the tour: readings from real recordings'
	@echo 'make check      build and run all tests'
	@echo 'make check-all  the same after the suites under AddressSanitizer, UBSan, ThreadSanitizer and Wine'
	@echo 'make check-windows  build quorvan.dll with MinGW-w64 and run its tests under Wine'
	@echo 'make docs       the reference pages, with search, in build/reference/html'
	@echo 'make gallery    draw docs/gallery again, each picture with the lines that made it'
	@echo 'make bench      speed beside FFTW, NumPy and SciPy, as ratios'
	@echo 'make picture    draw the pictures in docs/ again'
	@echo 'make format     bring all C and C++ files into the house format'
	@echo 'make tidy       clang-tidy over the library'
	@echo 'make install    install to PREFIX ($(PREFIX))'

# A preset, configured and built.
define built
	cmake --preset $(1)
	cmake --build --preset $(1) --parallel $(JOBS)
endef

demo:
	@tools/packages.sh build
	$(call built,demo)
	build/demo/examples/tour

check:
	@tools/packages.sh build test
	$(call built,release)
	ctest --preset release --parallel $(JOBS)

check-sanitizers:
	@tools/packages.sh build test
	$(call built,asan)
	ctest --preset asan --parallel $(JOBS)
	$(call built,tsan)
	ctest --preset tsan --parallel $(JOBS)

# The full suite comes last: its summary is the last word.
check-all: check-sanitizers
	@$(MAKE) --no-print-directory check-windows
	@$(MAKE) --no-print-directory check

# The release build of this system's library is the measure of the bits.
check-windows:
	@tools/packages.sh build test windows
	cmake --preset release
	cmake --build --preset release --target quorvan --parallel $(JOBS)
	JOBS=$(JOBS) WINEPREFIX=$(CURDIR)/build/windows/wine tools/windows_provider.sh build/windows/provider
	$(call built,windows)
	ctest --preset windows --parallel $(JOBS)

docs:
	@tools/packages.sh docs
	$(PYTHON) tools/reference.py

gallery:
	@tools/packages.sh build picture
	$(call built,demo)
	$(PYTHON) tools/gallery.py --library build/demo/libquorvan.so

bench:
	@tools/packages.sh build bench
	$(call built,bench)
	$(PYTHON) bench/run.py

picture:
	@tools/packages.sh build picture
	$(call built,demo)
	$(PYTHON) tools/picture.py --library build/demo/libquorvan.so
	$(PYTHON) tools/picture_trend.py --library build/demo/libquorvan.so

format:
	@tools/packages.sh format
	git ls-files --cached --others --exclude-standard '*.c' '*.h' '*.cpp' | xargs clang-format -i

tidy:
	@tools/packages.sh build test tidy
	cmake --preset release
	git ls-files '*.cpp' ':!bench' ':!tests' ':!*.target.cpp' | xargs clang-tidy -p build/release --quiet

install:
	@tools/packages.sh build
	$(call built,demo)
	cmake --install build/demo --prefix $(PREFIX)

clean:
	rm -rf build
