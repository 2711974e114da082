# Sourced by ./run, ./test and .ci/run: which Debian packages are needed for what, and how they
# get onto this machine. Nothing here asks a question.

# To build the programs; to draw and translate their window.
build_packages="g++ cmake ninja-build qt6-base-dev libqt6svg6-dev libcli11-dev nlohmann-json3-dev"
window_packages="qt6-translations-l10n fonts-dejavu-core fonts-liberation"
# To build and run the tests, among them an independent decoder of the serial line.
test_packages="libgtest-dev sigrok-cli"
# To check the form of the sources.
check_packages="clang-format clang-tidy"

# need_packages WHY PACKAGE...: installs what is missing, or says what and why, and fails.
need_packages() {
  why=$1
  shift
  states=$(dpkg-query -W -f '<${Package}=${db:Status-Status}>' "$@" 2>/dev/null || true)
  missing=
  for package in "$@"; do
    case "$states" in
      *"<$package=installed>"*) ;;
      *) missing="$missing $package" ;;
    esac
  done
  [ -n "$missing" ] || return 0

  root=
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
      root="sudo -n"
    else
      echo "Hiányzó csomagok ($why):$missing" >&2
      echo "Telepítésükhöz rendszergazdai jog kell. Futtassa ezt, azután próbálja újra:" >&2
      echo "  sudo apt-get install -y --no-install-recommends$missing" >&2
      return 1
    fi
  fi
  echo "Csomagok telepítése ($why):$missing" >&2
  $root apt-get update -qq >&2 || true
  # shellcheck disable=SC2086
  $root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends $missing >&2 </dev/null || {
    echo "A csomagok telepítése nem sikerült. Ellenőrizze a hálózatot és az apt forrásait!" >&2
    return 1
  }
}

# build PRESET: configures where that has not been done, and builds.
build() {
  [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >&2
  cmake --build --preset "$1" >&2
}
