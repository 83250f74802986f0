# What the scripts share; to be sourced. It goes to the repository's root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '==> %s\n' "$*"; }

build_packages=(
  g++ cmake ninja-build ccache mold pkg-config
  qt6-base-dev qt6-base-private-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-svg-dev libgl-dev
  libwxgtk3.2-dev libgtk-3-dev libdxflib-dev cmark-gfm
)
run_packages=(
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates qml6-module-qtquick-layouts
  qml6-module-qtquick-window qml6-module-qtqml qml6-module-qtqml-models
  qml6-module-qtqml-workerscript libgl1-mesa-dri fonts-dejavu-core adwaita-icon-theme
)
# A private X server with a window manager, several monitors, and a hand on mouse and keyboard.
display_packages=(xvfb xauth openbox xdotool x11-utils x11-xserver-utils)
test_packages=(qml6-module-qttest)

# install_packages NAME...: installs those that are missing from the system's own package sources.
install_packages() {
  local missing=() name
  for name in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$name" 2>/dev/null)" = "ii " ] || missing+=("$name")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  say "installing ${#missing[@]} missing packages: ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -q >/dev/null
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET: configures and builds build/PRESET.
build() {
  say "building $1"
  cmake --preset "$1" >/dev/null
  cmake --build --preset "$1"
}
