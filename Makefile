# Thin calls of presets and scripts. "make run" and "make test" are all that a newcomer needs.
.PHONY: run test asan bench check format icons pictures translations fuzz clean

SECONDS ?= 60

run:
	scripts/install-packages test
	scripts/build dev tessel tessel-editor
	scripts/run

test:
	scripts/install-packages test
	scripts/build dev
	ctest --preset dev

asan:
	scripts/install-packages test
	scripts/build asan
	ctest --preset asan

# TESSEL_BENCH_DATA names a folder of dictionaries to be measured besides the generated ones.
bench:
	scripts/install-packages bench
	scripts/build release
	build/release/bench/bench_dictionary
	build/release/bench/bench_naming --benchmark_min_time=0.2
	build/release/bench/bench_variables --benchmark_min_time=0.2
	build/release/bench/bench_filters --benchmark_min_time=0.3
	QT_QPA_PLATFORM=offscreen build/release/bench/bench_editor build/release/editor/tessel-editor build/release/bench/bare_window

check:
	scripts/install-packages check
	scripts/check

format:
	scripts/install-packages check
	scripts/sources | xargs clang-format -i

icons:
	scripts/install-packages icons
	scripts/render-icons

pictures:
	scripts/install-packages build
	scripts/build dev tessel-editor
	scripts/pictures

translations:
	scripts/install-packages build
	scripts/update-translations

# Runs the fuzz target for SECONDS seconds, beginning with the samples.
fuzz:
	scripts/install-packages fuzz
	scripts/build fuzz
	mkdir -p build/fuzz/corpus
	LSAN_OPTIONS=suppressions=fuzz/lsan.supp:print_suppressions=0 build/fuzz/fuzz/fuzz_document -artifact_prefix=build/fuzz/ -max_total_time=$(SECONDS) -timeout=10 build/fuzz/corpus samples

clean:
	rm -rf build
