# shellcheck shell=bash
# What Debian packages the commands need, and how they get here. Sourced, after
# common.sh.

# shellcheck disable=SC2034
packages_to_build=(
    build-essential cmake ninja-build ccache pkg-config
    qtbase5-dev qtbase5-private-dev qtdeclarative5-dev qtwebengine5-dev qttools5-dev qttools5-dev-tools
    libxcb1-dev libxcb-shape0-dev librsvg2-bin fonts-mplus
)

# Loaded by the screens as they run.
# shellcheck disable=SC2034
packages_to_run=(
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls qml-module-qtquick-dialogs
    qml-module-qtquick-layouts qml-module-qtquick-privatewidgets qml-module-qtgraphicaleffects
    qml-module-qt-labs-settings qml-module-qtqml-models2 qml-module-qtwebengine
    qttranslations5-l10n
)

# What scripts/with-x and those who look at its screen call.
# shellcheck disable=SC2034
packages_without_display=(xvfb openbox picom xdotool x11-utils)

# Draws the map of a tutorial.
# shellcheck disable=SC2034
packages_to_draw=(graphviz)

# Takes the pictures of the pages.
# shellcheck disable=SC2034
packages_to_picture=(imagemagick)

# The accessibility bus, and the Python bindings for what listens on it.
# shellcheck disable=SC2034
packages_to_listen=(at-spi2-core dbus-bin dbus-daemon python3-pyatspi)

# shellcheck disable=SC2034
packages_to_test=(
    qml-module-qttest qtdeclarative5-dev-tools clang-format clang-tidy shellcheck python3
    xsettingsd xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils
)

# Make the packages and look into them, and a bare system to install one in.
# shellcheck disable=SC2034
packages_to_package=(dpkg-dev lintian appstream desktop-file-utils mmdebstrap)

# shellcheck disable=SC2034
packages_to_film=(python3-pil)

# shellcheck disable=SC2034
packages_to_measure=(libbenchmark-dev)

# shellcheck disable=SC2034
packages_to_fuzz=(clang libclang-rt-dev llvm)

# Build for Windows, Qt included, and run what was built.
# shellcheck disable=SC2034
packages_to_prove_windows=(dpkg-dev g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine wine64 unzip)

# Fetch the script compiler. They come from many places other than Debian's
# packages, so the commands themselves are looked for.
declare -A packages_of_commands=([node]=nodejs [npm]=npm)

# print_missing <package...>: one line for each that is not installed.
print_missing() {
    local command
    dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null \
        | sed -n 's/^installed //p' \
        | grep -vxF -f - <(printf '%s\n' "$@") || true
    for command in "${!packages_of_commands[@]}"; do
        command -v "$command" >/dev/null || printf '%s\n' "${packages_of_commands[$command]}"
    done
}

# install_missing <package...>: a call that costs nothing when all are there.
install_missing() {
    local missing as_root=()
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        say "no Debian system, so that nothing is installed; the build names what it lacks"
        return
    fi
    mapfile -t missing < <(print_missing "$@")
    ((${#missing[@]})) || return 0

    local by_hand="apt-get install --no-install-recommends ${missing[*]}"
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "packages are missing; install them as root with: $by_hand"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    if ! { "${as_root[@]}" apt-get update -q </dev/null \
        && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null; }; then
        die "packages could not be installed; install them as root with: $by_hand"
    fi
}
