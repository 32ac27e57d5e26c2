# Everyday commands. The programs land in build/bin.
.NOTPARALLEL:
.DEFAULT_GOAL := build
.PHONY: deps build run test lint test-sanitize coverage bench fuzz donnees-carte donnees-lune guide images-guide \
  paquet essai-paquet essai-source essai-arm64 clean

SHELL := /bin/bash
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
APT := $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300
TACHES := 2
# Tests at once: most of them wait (see tests/CMakeLists.txt).
PLACES := 6
# Seconds that each fuzz target runs.
DUREE := 60
# Where its chance begins: 0 for another place each time.
GRAINE := 0
# What the chart's data are made from; a build needs none of it.
PAQUETS_CARTE := gmt gmt-gshhg-high gmt-gshhg-full libgeonames-common python3 python3-numpy
# What a small computer's program is built and tried with.
PAQUETS_ARM64 := crossbuild-essential-arm64 qemu-user liberfa-dev:arm64 libsqlite3-dev:arm64
CIBLES_FUZZ := fuzz-lop fuzz-controle fuzz-langue fuzz-nombre fuzz-polygone fuzz-lieux fuzz-objets fuzz-magasin fuzz-reprise fuzz-reglages fuzz-registre fuzz-route fuzz-points fuzz-serie
DOSSIERS := foundations ephemerides sights lines chart sky complements shell calcul
TABLES_CIEL := complements/ciel/tables
vide :=
SOURCES := ($(subst $(vide) $(vide),|,$(DOSSIERS)))/.*\.cpp$$
COUVERTURE := build/coverage/couverture.json

# Installs what is missing; touches no network when nothing is.
deps:
	@voulus=$$(sed 's/#.*//' packaging/dependances.txt | xargs); \
	presents=$$(dpkg-query -W -f='$${db:Status-Status} $${Package}\n' $$voulus 2>/dev/null | sed -n 's/^installed //p'); \
	manque=$$(comm -23 <(tr ' ' '\n' <<<"$$voulus" | sort -u) <(sort -u <<<"$$presents") | xargs); \
	[ -z "$$manque" ] && exit 0; \
	echo "Installing: $$manque"; \
	$(APT) install -y --no-install-recommends $$manque || \
	  { $(APT) update && $(APT) install -y --no-install-recommends $$manque; }

build:
	cmake --preset release
	cmake --build --preset release

# Builds the programs alone: who only wants to sail needs no tests.
run: deps
	cmake --preset release
	cmake --build --preset release --target velmaris velmaris-calcul donnees guide
	tools/demarre

test: deps build
	ctest --test-dir build --output-on-failure -j$(PLACES)

# The form of every tracked source, then the checks of cppcheck and of .clang-tidy on the core and the programs.
lint: deps build
	git ls-files -z '*.cpp' '*.hpp' | xargs -0 -r clang-format --dry-run -Werror
	mkdir -p build/cppcheck
	cppcheck --enable=warning,performance,portability --inline-suppr --std=c++20 --library=qt --error-exitcode=1 --quiet \
	  -j$(TACHES) --cppcheck-build-dir=build/cppcheck -I. $(DOSSIERS)
	run-clang-tidy-22 -quiet -p build -j$(TACHES) -extra-arg=-Wno-unknown-warning-option '^$(CURDIR)/$(SOURCES)'

test-sanitize: deps
	cmake --preset sanitize
	cmake --build --preset sanitize
	UBSAN_OPTIONS=print_stacktrace=1 LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan.supp ctest --preset sanitize -j$(PLACES)

# Lines and branches that the tests of the core and of the companion run, folder by folder; fails under 95 % of lines.
# What they don't run, file by file, is left in build/coverage/couverture.txt. gcovr puts a new file in the place of what
# it writes to: never /dev/null, which the administrator would lose.
coverage: deps
	cmake --preset coverage
	cmake --build --preset coverage
	find build/coverage -name '*.gcda' -delete
	build/coverage/bin/tests-coeur --gtest_brief=1
	build/coverage/bin/tests-complements --gtest_brief=1
	build/coverage/bin/tests-calcul --gtest_brief=1
	gcovr -j$(TACHES) --exclude-throw-branches --exclude-unreachable-branches $(DOSSIERS:%=--filter %/) --exclude shell/qt/ \
	  --json $(COUVERTURE) --txt $(COUVERTURE:json=txt) build/coverage
	@for dossier in $(DOSSIERS); do \
	  printf '%-12s %s\n' $$dossier "$$(gcovr -a $(COUVERTURE) -f $$dossier/ -s -o $(COUVERTURE:json=tmp) | xargs)"; \
	done
	gcovr -a $(COUVERTURE) --print-summary --fail-under-line 95 -o $(COUVERTURE:json=tmp)

bench: deps build
	tests/bench/tout.sh build/bin docs/PERFORMANCE.md

fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz --target $(CIBLES_FUZZ)
	for cible in $(CIBLES_FUZZ); do \
	  mkdir -p build/fuzz/corpus/$$cible && \
	  UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 build/fuzz/bin/$$cible -max_total_time=$(DUREE) -seed=$(GRAINE) -timeout=20 -print_final_stats=1 -artifact_prefix=build/fuzz/$$cible- \
	    build/fuzz/corpus/$$cible tests/fuzz/corpus/$$cible || exit 1; \
	done


# The Debian package, build/velmaris_*.deb, and the checks of it.
paquet: deps build
	rm -rf build/velmaris_*.deb build/_CPack_Packages
	cd build && cpack
	packaging/verifie-paquet.sh build/velmaris_*.deb

# Installs that package into a bare Debian and tries it there; needs root and a mirror.
essai-paquet: paquet
	packaging/essai-paquet.sh build/velmaris_*.deb

# Builds the last commit in a bare Debian, with what it asks for itself; needs root, a mirror and half an hour.
essai-source: deps
	packaging/essai-source.sh

# Core and companion for arm64, and 20,000 sights reduced there and here: not a bit may differ.
essai-arm64: deps build
	dpkg --print-foreign-architectures | grep -qx arm64 || { $(SUDO) dpkg --add-architecture arm64 && $(APT) update; }
	$(APT) install -y --no-install-recommends $(PAQUETS_ARM64)
	cmake --preset arm64
	cmake --build --preset arm64
	/usr/bin/python3 -B tests/tools/memes_bits.py build/bin/velmaris-calcul build/arm64/bin/velmaris-calcul \
	  --lanceur "qemu-aarch64 -L /usr/aarch64-linux-gnu -E LD_LIBRARY_PATH=/usr/lib/aarch64-linux-gnu"

# Makes the world chart's data again, from GSHHG and GeoNames, into data/.
donnees-carte:
	@voulus="$(PAQUETS_CARTE) $$(command -v npm >/dev/null || echo nodejs npm)"; \
	dpkg -s $$voulus >/dev/null 2>&1 || \
	  $(APT) install -y --no-install-recommends $$voulus || \
	  { $(APT) update && $(APT) install -y --no-install-recommends $$voulus; }
	/usr/bin/python3 -B tools/donnees_carte --travail build/donnees_carte

# Makes the Moon's table of the sky of today again from libnova, in ten minutes; the sums in SOMMES.txt go with it.
donnees-lune: deps
	cmake --preset release
	cmake --build --preset release --target genere-lune genere-ciel
	build/bin/genere-lune > build/lune_chebychev.txt
	cp build/lune_chebychev.txt $(TABLES_CIEL)
	(sed -n '/^#/p' $(TABLES_CIEL)/SOMMES.txt; build/bin/genere-ciel --sommes $(TABLES_CIEL)) > build/SOMMES.txt
	cp build/SOMMES.txt $(TABLES_CIEL)

# The user's guide alone: HTML pages and help files in build/bin.
guide: deps
	cmake --preset release
	cmake --build --preset release --target guide

# Takes the guide's pictures again, from the program on a virtual screen.
images-guide: deps build
	for langue in fr en; do \
	  xvfb-run -a -s "-screen 0 1920x1080x24 -noreset" docs/guide/images.sh build/bin/velmaris build/pictures/guide-$$langue $$langue \
	    docs/guide/$$langue/images data/exemples || exit 1; \
	done

clean:
	rm -rf build
