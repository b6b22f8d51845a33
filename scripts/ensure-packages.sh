# Sourced by run.sh and test.sh: installs the Debian packages the build needs when
# any is missing.  Uses sudo when not run as root.
ORBIDEX_PACKAGES=(
  cmake make g++ clang libclang-rt-14-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  qt6-base-dev fonts-dejavu-core ccache
  libqt6svg6
  pkgconf libical-dev poppler-utils
)

ensure_packages() {
  local missing=()
  for pkg in "${ORBIDEX_PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed" || missing+=("$pkg")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
