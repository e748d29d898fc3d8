# Two commands set up everything on a fresh Debian machine: `make demo` and `make test`.

BUILD ?= build
JOBS ?= $(shell nproc)
CMAKE_ARGS ?=
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

# Everything the build, the tests, the demo and the benchmarks need, from Debian.
PACKAGES := build-essential cmake ninja-build pkg-config \
  qt6-base-dev qt6-qpa-plugins libsqlite3-dev sqlite3 libzip-dev zlib1g-dev libpugixml-dev libpng-dev \
  libgtest-dev libgmock-dev \
  libjpeg-turbo-progs libjpeg62-turbo-dev libmuparser-dev \
  libxml2-utils poppler-utils libreoffice-writer-nogui fonts-wqy-zenhei unzip python3 python3-docx \
  g++-mingw-w64-x86-64 nodejs wine64 fonttools

.PHONY: deps build test demo bench clean com com-wine format

deps:
	@missing=""; for p in $(PACKAGES); do dpkg -s $$p >/dev/null 2>&1 || missing="$$missing $$p"; done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  $(SUDO) apt-get update -qq && DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi
	@tests/tools/ensure_katex.sh

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DLP_BUILD_BENCH=ON $(CMAKE_ARGS)

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

com: deps
	cmake -S . -B $(BUILD)-mingw -G Ninja -DLP_COM_ONLY=ON -DLP_BUILD_TESTS=OFF \
	  -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake
	cmake --build $(BUILD)-mingw -j $(JOBS)

# The COM back end driven under Wine against the Word double; its own summary line.
com-wine: com
	tests/word_com/run_under_wine.sh $(BUILD)-mingw

test: build com
	QT_QPA_PLATFORM=offscreen ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)
	tests/word_com/run_under_wine.sh $(BUILD)-mingw

demo: build
	demo/make_worksheet.sh $(BUILD)

bench: build
	bench/run_all.sh $(BUILD)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) $(BUILD)-mingw
