# shellcheck shell=bash
# shellcheck disable=SC2154
# Qt for Windows, cross-built from Debian's own sources in the release that the machine has, so that its tools for the
# build (lrelease) fit. Sourced, after common.sh, with $folder set. What is built once is kept.

compiler=x86_64-w64-mingw32-
qt=$folder/qt

# Each module, and the package of this machine whose release it has. Not every mirror has the sources of the last one.
qt_modules=(qtbase qtdeclarative qtquickcontrols)
optional_module=qtquickcontrols
declare -A package_of_module=(
    [qtbase]=qtbase5-dev [qtdeclarative]=qtdeclarative5-dev [qtquickcontrols]=qml-module-qtquick-controls)

# No OpenGL: the software renderer draws alike on all machines. The rest is what no program here uses.
qtbase_options=(
    -opensource -confirm-license -release -shared -silent -prefix "$qt" -ccache
    -xplatform win32-g++ -device-option "CROSS_COMPILE=$compiler"
    -no-opengl -no-direct2d -no-dbus -no-icu -no-openssl -no-feature-sql -no-feature-concurrent
    -system-zlib -qt-pcre -qt-freetype -qt-harfbuzz -qt-libpng -qt-libjpeg -no-pch
    -nomake examples -nomake tests)

# version_of <module>: of the source package.
version_of() {
    # shellcheck disable=SC2016
    dpkg-query -W -f '${source:Version}' "${package_of_module[$1]}"
}

# Sources come by a list and folders of our own, so that the machine's stay as they are.
private_apt() {
    apt-get -q -o "Dir::Etc::SourceList=$folder/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o "Dir::State::Lists=$folder/apt/lists" -o "Dir::Cache=$folder/apt/cache" \
        -o APT::Sandbox::User="$(id -un)" "$@"
}

# The places are those that this machine has its packages from.
prepare_private_apt() {
    [[ ! -e $folder/apt/ready ]] || return 0
    mkdir -p "$folder"/apt/{lists,cache}/partial
    local keys=/usr/share/keyrings/debian-archive-keyring.gpg
    # shellcheck disable=SC2016
    apt-get indextargets --format '$(ORIGIN) deb-src [signed-by='"$keys"'] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' | sed -n 's/^Debian //p' >"$folder/apt/sources.list"
    [[ -s $folder/apt/sources.list ]] || die "this machine has no Debian sources of packages to take Qt's from"
    private_apt update && touch "$folder/apt/ready"
}

# mend_qtbase <source folder>: Debian leaves out the header of the tablets' driver.
mend_qtbase() {
    local plugin=$1/src/plugins/platforms/windows
    sed -i 's/QT_CONFIG(tabletevent)/0/' "$plugin"/qwindows{context,pointerhandler}.cpp || return
    sed -i 's/^qtConfig(tabletevent) {/false {/' "$plugin/windows.pri"
}

# What follows is called where the shell does not stop at a failure by itself.

# fetch_source <module> <version>: sets $source to its folder.
fetch_source() {
    local name=$1-opensource-src version=$2
    source=$folder/sources/$name-${version%-*}
    [[ $(cat "$source.complete" 2>/dev/null) != "$version" ]] || return 0
    rm -rf "$source"
    prepare_private_apt \
        && cd "$folder/sources" \
        && private_apt source --download-only "$name=$version" \
        && dpkg-source --no-check -x "${name}_$version.dsc" \
        || return
    if [[ $1 == qtbase ]]; then
        mend_qtbase "$source" || return
    fi
    printf '%s\n' "$version" >"$source.complete"
}

# configure_module <module>: in the current folder.
configure_module() {
    case $1 in
        qtbase) "$source/configure" "${qtbase_options[@]}" ;;
        # Its Direct3D plugin wants a compiler of shaders; its tools are for those who write screens.
        qtdeclarative) "$qt/bin/qmake" CONFIG+=ccache "$source" -- -no-d3d12 -no-feature-qml-devtools ;;
        *) "$qt/bin/qmake" CONFIG+=ccache "$source" ;;
    esac
}

# build_module <module> <version> <mark>
build_module() {
    local module=$1
    fetch_source "$module" "$2" && cd "$folder/$module" || return
    if [[ $(cat configured 2>/dev/null) != "$3" ]]; then
        configure_module "$module" || return
        printf '%s\n' "$3" >configured
    fi
    make -j"$(nproc)" && make install && printf '%s\n' "$3" >installed
}

# The window is all that the guidance takes of the controls.
stand_in_for_controls() {
    mkdir -p "$qt/qml/QtQuick/Controls"
    cp "$tree"/tests/support/controls/{qmldir,ApplicationWindow.qml} "$qt/qml/QtQuick/Controls"
}

# Half an hour on two cores, the first time.
stage_qt() {
    local module version mark log
    mkdir -p "$folder"/{logs,sources}
    for module in "${qt_modules[@]}"; do
        version=$(version_of "$module")
        # Built again where one of these has changed.
        mark="$version $(declare -p qtbase_options && declare -f configure_module)"
        log=$folder/logs/$module.log
        mkdir -p "$folder/$module"
        [[ $(cat "$folder/$module/installed" 2>/dev/null) != "$mark" ]] || continue
        say "building $module $version; what it says goes to $log"
        supervise build_module "$module" "$version" "$mark" >"$log" 2>&1 && continue
        [[ $module == "$optional_module" && ! -e $folder/$module/configured ]] \
            || fail_with "$log" "$module can't be built"
        stand_in_for_controls
        note "not proven" "the authoring mode" "no sources of Qt Quick Controls 1 here; a stand-in for its window serves"
    done
    # The toolkit's own texts are the same for all systems.
    mkdir -p "$qt/translations"
    cp /usr/share/qt5/translations/qtbase_*.qm "$qt/translations"
    note passed "Qt $(version_of qtbase) is built"
}
