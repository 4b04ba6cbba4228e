# The front door. Everything behind it is done by setup/ (a fresh machine) and CMake
# (the build); this file only says in which order.

SHELL := /bin/bash
.DEFAULT_GOAL := help
.NOTPARALLEL:

JOBS ?= $(shell nproc)
ROUNDS ?= 20000
SEED ?= 1
prefix ?= /usr/local
SUITE ?= bullseye
DESTDIR ?=
export DESTDIR PYTHON27 PYTHON27_DEBUG

# On a terminal the build tool keeps to one line; elsewhere it says nothing but what fails.
quiet := $(if $(MAKE_TERMOUT),,$(shell ninja --help 2>&1 | grep -q -e --quiet && echo -- --quiet))
compile := cmake --build build --parallel $(JOBS)
compile_debug := cmake --build build/debug --parallel $(JOBS) $(quiet)

# Runs its argument under the interpreter that was built for, with the fresh module.
python = . build/python27.env && PYTHONPATH=build/lib "$$PYTHON27_EXECUTABLE" $(1)
have_debug = . build/python27.env && [ -n "$$PYTHON27_DEBUG_EXECUTABLE" ]

.PHONY: help demo demo-ping test build product debug bench growth docs docs-test race fuzz soak portable install \
    install-standin uninstall deb deb-test root-test format tidy setup configure mutants clean

demo: product ## install what is missing, build, and run the quick start
	@$(call python,examples/quickstart.py)

demo-ping: product ## two hosts ping through the switch: real frames as root, else in memory
	@$(call python,examples/ping/ping.py)

test: build portable debug ## the same, and every test: release, then debug interpreter and sanitizers
	@tests/run/ctest_all.sh $(JOBS)

build: configure ## the module, its libraries and Python files, together in build/lib, and the tests
	@$(compile) $(quiet)

product: configure # the module and its libraries, and no test
	@$(compile) --target product $(quiet)

debug: configure ## the same under the debug interpreter and sanitizers, in build/debug
	@if $(have_debug); then setup/configure.sh debug && $(compile_debug); fi

bench: product ## compare with hand-written extension code, ctypes, Cython and pybind11
	@setup/peers.sh build/peers
	@cmake build --log-level=WARNING
	@$(compile) --target bench

growth: product ## count how the stand-in's operations grow with their tables
	@$(compile) --target growth

docs: product ## the reference, made from the declarations: build/reference/index.html
	@$(compile) --target docs $(quiet)

docs-test: docs ## search it and follow its links in a real browser
	@setup/packages.sh browser
	@$(call python,tests/browser/browse.py build/reference)

race: build ## threads of both kinds over the libraries, under ThreadSanitizer
	@setup/configure.sh threads
	@cmake --build build/threads --parallel $(JOBS) --target soak_threads
	@LD_LIBRARY_PATH=build/threads/lib PYTHONPATH=build/lib TSAN_OPTIONS=halt_on_error=1 \
	    build/threads/tests/soak/threads/soak_threads $(ROUNDS) $(SEED)

fuzz: setup ## feed the parsers and the conversions hostile input
	@setup/packages.sh fuzz
	@setup/configure.sh fuzz
	@cmake --build build/fuzz --parallel $(JOBS) --target fuzz

soak: build debug ## random calls, failing allocations, interpreters, threads, memory: an hour; SEED=1
	@tests/soak/run.sh "$(or $(SEED),1)"

portable: build ## module and companion for older C and C++ libraries, in build/portable
	@$(compile) --target portable

install: build ## install module, proxy and companion below DESTDIR and prefix (/usr/local)
	@cmake --install build --prefix "$(prefix)" --component module --strip

install-standin: build ## install the stand-in, into a folder that no loader searches by itself
	@cmake --install build --prefix "$(prefix)" --component standin --strip

uninstall: ## remove what install and install-standin have put there
	@packaging/uninstall.sh build

deb: portable docs ## Debian packages of the module, the stand-in and the documents, in build/deb
	@setup/packages.sh deb
	@packaging/make_deb.sh build/deb

deb-test: deb ## install, use and remove the packages in a bare root
	@packaging/deb_test.sh build/roots bookworm

root-test: ## demo and tests in a bare root of Debian SUITE=bullseye, as a new user's
	@packaging/root_test.sh build/roots "$(SUITE)"

format: ## lay out all C++ sources by .clang-format
	@setup/packages.sh format
	@git ls-files -z --cached --others --exclude-standard '*.h' '*.cpp' ':!tests/generator/*/*' | \
	    xargs -0 -r clang-format-16 -i

tidy: build ## static checks by .clang-tidy
	@setup/packages.sh tidy
	@run-clang-tidy -quiet -p build -j $(JOBS) '^$(CURDIR)/(?!build/)'

setup: ## install what is missing on this machine, nothing else
	@setup/packages.sh build
	@setup/python27.sh build/python27.env

configure: setup
	@setup/configure.sh release

mutants: build ## plant faults one by one; the release suites must catch each
	@tests/mutants/run.py build $(JOBS)

clean: ## remove all that was built
	rm -rf build

help: ## this list
	@echo "usage: make TARGET [PYTHON27=/path/to/python2.7] [JOBS=n] [prefix=/usr/local] [DESTDIR=]"
	@sed -n 's/^\([a-z-]*\):[^#]*## \(.*\)/  \1\t\2/p' Makefile | expand -t 20
