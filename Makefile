# Thin calls of presets and scripts. "make run" and "make test" are all that a newcomer needs.
.PHONY: run test asan bench check coverage format fuzz icons mutate pictures translations clean

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

bench:
	scripts/install-packages bench
	scripts/build release
	scripts/bench

coverage:
	scripts/install-packages coverage
	scripts/coverage

mutate:
	scripts/install-packages test mutate
	scripts/build dev
	scripts/mutate

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
