# Thin calls of presets and scripts. "make run" and "make test" are all that a newcomer needs.
.PHONY: run test asan bench check coverage format fuzz fuzz-corpus icons mutate pictures translations clean

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

# BASE names a revision: clang-tidy then looks only at what changed since.
check:
	scripts/install-packages check
	scripts/check $(BASE)

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

# Runs each fuzz target for SECONDS seconds; TARGETS names some of them.
fuzz:
	scripts/install-packages fuzz
	scripts/fuzz $(SECONDS) $(TARGETS)

# The quick run over the seeds that belongs to every change.
fuzz-corpus:
	scripts/install-packages fuzz
	scripts/fuzz --corpus $(TARGETS)

clean:
	rm -rf build
