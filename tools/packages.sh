# Sourced by ./run, ./test and .ci/run: which Debian packages are needed for what, how they get
# onto this machine, and how a preset is built. Nothing here asks a question.

# To build the programs; to draw and translate their window.
build_packages="g++ cmake ninja-build qt6-base-dev qt6-svg-dev libcli11-dev nlohmann-json3-dev"
window_packages="qt6-translations-l10n fonts-dejavu-core fonts-liberation"
# To build and run the tests, among them independent readers of the serial line and of images, and
# a display with a screen reader's access to drive the program by.
test_packages="libgtest-dev sigrok-cli srecord xvfb openbox xdotool dbus-daemon at-spi2-core \
  python3-pyatspi"
# To run a PC with a printer port of its own, and a kernel fetched from the same source.
virtual_pc_packages="qemu-system-x86 busybox-static cpio binutils"
# To check the form of the sources.
check_packages="clang-format clang-tidy"
# To tell which lines of the sources the tests run.
coverage_packages="gcovr"
# To build the fuzzers, with the sanitizers' and libFuzzer's own libraries.
fuzz_packages="clang libclang-rt-dev"
# To make the Debian package: what its own list names, and the maker of packages.
package_packages="build-essential debhelper $(sed -n '/^Build-Depends:/,/^[^ ]*:/s/^ \([a-z0-9+-]*\).*/\1/p' debian/control |
  grep -v debhelper-compat | tr '\n' ' ')"
# To judge the files of the package.
packaging_check_packages="appstream desktop-file-utils mandoc man-db libxml2-utils"
# To make a root of a release that has none of the above.
fresh_debian_packages="debootstrap"

# missing_packages PACKAGE...: prints those that are not installed, a blank ahead of each.
missing_packages() {
  states=$(dpkg-query -W -f '<${Package}=${db:Status-Status}>' "$@" 2>/dev/null || true)
  for package in "$@"; do
    case "$states" in
      *"<$package=installed>"*) ;;
      *) printf ' %s' "$package" ;;
    esac
  done
}

# need_packages WHY PACKAGE...: installs what is missing, or says what and why, and fails.
need_packages() {
  why=$1
  shift
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0

  if ! command -v apt-get >/dev/null; then
    echo "Hiányzik ($why):$missing" >&2
    echo "Ezen a gépen nincs apt-get; telepítse ezeket a gép saját eszközével!" >&2
    return 1
  fi
  root=
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
      root="sudo -n"
    else
      command="apt-get install -y --no-install-recommends$missing"
      echo "Hiányzó csomagok ($why):$missing" >&2
      echo "Telepítésükhöz rendszergazdai jog kell. Futtassa az egyiket, azután próbálja újra:" >&2
      echo "  sudo $command" >&2
      echo "  su -c '$command'" >&2
      return 1
    fi
  fi
  echo "Csomagok telepítése ($why):$missing" >&2
  lock="-o DPkg::Lock::Timeout=120"
  # shellcheck disable=SC2086
  $root apt-get $lock update -qq >&2 || true
  # shellcheck disable=SC2086
  $root env DEBIAN_FRONTEND=noninteractive \
    apt-get $lock install -y -qq --no-install-recommends $missing >&2 </dev/null || true
  missing=$(missing_packages "$@")
  if [ -n "$missing" ]; then
    echo "Nem sikerült telepíteni:$missing" >&2
    echo "Ellenőrizze a hálózatot és az apt forrásait!" >&2
    return 1
  fi
}

# fuzz OPTION...: builds the fuzzers, runs each with these options of libFuzzer on its corpus, and
# prints how many runs that were and what they reached. What they find new stays in the folder
# $finds; an input that fails is there as NAME-crash-... Two runs with one seed are the same where
# the system lets addresses stand still.
finds=build/fuzz/finds
fuzz() {
  build fuzz
  steady=
  ! setarch -R true 2>/dev/null || steady="setarch -R"
  shared=/dev/shm
  [ -w "$shared" ] || shared=${TMPDIR:-/tmp}
  for fuzzer in lap pwm hex preferences wire; do
    mkdir -p "$finds/$fuzzer"
    corpus=$(find "tests/fuzz/corpus/$fuzzer" -type f | LC_ALL=C sort | paste -sd,)
    if ! TMPDIR=$shared $steady "build/fuzz/bin/fuzz_$fuzzer" -max_len=4096 -timeout=60 -print_funcs=0 \
      -artifact_prefix="$finds/$fuzzer-" -seed_inputs="$corpus" "$@" "$finds/$fuzzer" \
      >"$finds/$fuzzer.log" 2>&1; then
      tail -n 60 "$finds/$fuzzer.log"
      return 1
    fi
    echo "fuzz_$fuzzer: $(grep DONE "$finds/$fuzzer.log")"
  done
}

# build PRESET: configures where that has not been done for this folder, and builds.
build() {
  if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt" ||
    [ ! -f "build/$1/build.ninja" ]; then
    cmake --fresh --preset "$1" >&2
  fi
  cmake --build --preset "$1" >&2
}
