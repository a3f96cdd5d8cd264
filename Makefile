# The front door. Every target installs the Debian packages it needs and works through the presets
# of CMakePresets.json; what takes more than a line lies in scripts/.

JOBS ?= $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help demo build test lint format sanitize arm64 compat figures bench mutants fuzz platform-check package reference ci clean

help: ## show this list
	@awk -F ':.*## ' '/^[a-z0-9-]+:.*## / { printf "  make %-14s %s\n", $$1, $$2 }' Makefile

build: ## build library and tools (build/release)
	@scripts/install-packages build
	@scripts/build release -j $(JOBS) --target shipped

demo: ## build and run the main job on the bundled example
	@scripts/install-packages build
	@scripts/build release -j $(JOBS) --target shipped presets radio-service radio-player
	@echo
	@echo "The input, examples/presets.json:"
	@cat examples/presets.json
	@echo
	@echo "What the typed accessors answer, and each element in full, shallow and as a reference:"
	@build/release/examples/presets examples/presets.json
	@echo
	@echo "A client and its service, two processes that send each other values as lines of JSON:"
	@examples/radio/run build/release/examples
	@echo
	@echo "The same with a fault in the service, of which nobody says a word:"
	@examples/radio/run build/release/examples --faulty
	@echo
	@echo "Once more, under the library that tells:"
	@PLAYER_UNDER="build/release/tools/kiv/kiv trace" examples/radio/run build/release/examples --faulty

test: ## build everything and run all tests
	@scripts/install-packages build reference
	@scripts/build release -j $(JOBS)
	ctest --preset release -j $(JOBS) --output-on-failure
	@scripts/other-platform -j $(JOBS)

lint: ## check form and likely faults of code and definitions
	@scripts/install-packages build lint
	@scripts/lint -j $(JOBS)

format: ## bring the code into form
	@scripts/install-packages lint
	@scripts/sources | xargs clang-format -i

sanitize: ## all tests under address, undefined-behaviour and thread sanitizers (QUICK=1)
	@scripts/install-packages build sanitize $(if $(QUICK),fuzz)
	@scripts/sanitize $(if $(QUICK),--quick) -j $(JOBS)

arm64: ## cross-build for 64-bit Arm and run the tests under emulation
	@scripts/install-packages build arm64
	@scripts/arm64 -j $(JOBS)

compat: ## what the definitions break since the last release, and the version for it
	@scripts/install-packages build
	@scripts/compat -j $(JOBS)

figures: ## hold the figures that do not depend on the machine
	@scripts/install-packages build figures
	@scripts/check-figures -j $(JOBS)

bench: ## measure beside the peers, as ratios
	@scripts/install-packages build bench
	@scripts/bench -j $(JOBS)

mutants: ## plant faults one by one and name the test that finds each (MUTANTS=pattern)
	@scripts/install-packages build reference
	@JOBS=$(JOBS) scripts/mutants $(MUTANTS)

fuzz: ## a bounded fuzz run (SECONDS_EACH=60)
	@scripts/install-packages build fuzz
	@scripts/fuzz $(SECONDS_EACH)

platform-check: ## whether a platform fits, and how (ZEL_KIV_PLATFORM=<prefix>, JSON=1)
	@scripts/install-packages build
	@scripts/platform-check $(if $(JSON),--json) "$(ZEL_KIV_PLATFORM)" -j $(JOBS)

package: ## Debian packages, and a consumer built against them
	@scripts/install-packages build arm64 package
	@scripts/package -j $(JOBS)
	@scripts/check-reproducible -j $(JOBS)

reference: ## the browsable reference (build/reference/index.html)
	@scripts/install-packages build reference
	@scripts/build release -j $(JOBS) --target reference
	@ln -sfn release/reference build/reference
	@echo "Open $(CURDIR)/build/reference/index.html"

ci: ## what .ci/run runs
	@bash .ci/run

clean: ## remove all that was built
	rm -rf build
