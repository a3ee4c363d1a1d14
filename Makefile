# liborv: the two commands that do everything are `make demo` and
# `make check`. Run as root on a fresh Debian machine, they first install
# what the build needs.

BUILD ?= build
PACKAGES := gcc-multilib g++-multilib cmake ninja-build libmpfr-dev

.PHONY: all deps configure demo check bench clean

all: configure
	cmake --build $(BUILD)

# Installs missing packages when run as root; otherwise only reports them.
deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg -s $$p >/dev/null 2>&1 || missing="$$missing $$p"; done; \
	if [ -n "$$missing" ]; then \
	  if [ "$$(id -u)" = 0 ]; then \
	    apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y $$missing; \
	  else echo "missing packages:$$missing (run as root to install them)"; exit 1; fi; \
	fi

configure: deps
	@[ -f $(BUILD)/build.ninja ] || cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Release

demo: all
	cmake --build $(BUILD) --target demo

check: all
	ctest --test-dir $(BUILD) --output-on-failure -j2

bench: configure
	cmake --build $(BUILD)
	cmake --build $(BUILD) --target bench

clean:
	rm -rf $(BUILD)
