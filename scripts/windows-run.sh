# shellcheck shell=bash
# shellcheck disable=SC2154
# The programs for Windows and their runs under wine. Sourced, after windows-qt.sh.

build=$folder/build

# What can't pass here, by test or function, and why. It is run all the same, and the table tells of it.
no_tools="Qt's tools for translations (lupdate, lconvert, lrelease) are not built for Windows here"
no_graphviz="Graphviz is not here for Windows"
declare -A known_failures=(
    [tst_Catalogs::everyTextOfTheProgramIsThere]=$no_tools
    [tst_HintTranslation::goesToATranslatorAndBack]=$no_tools
    [tst_HintTranslation::readsWhatToolsMake]=$no_tools
    [tst_HintTranslation::refusesOtherFiles]=$no_tools
    [tst_TutorialTranslation::suitsTheToolsOfTheFormat]=$no_tools
    [tst_TutorialMap::namesStayAsTheyAre]=$no_graphviz
    [tst_TutorialMap::showsWhereEachAnswerLeads]=$no_graphviz
    [tst_TutorialMap::readmeShowsTheTutorial]=$no_graphviz
    [tst_GuidanceOnScreen::tipComesAndGoes]="wine changes no window's opacity but together with its pixels"
)

# One line each for the table at the end, and how many of them fail the proof.
results=()
failures=0

# note <result> <name> [remark]
note() {
    results+=("$(printf '%-13s %s%s' "$1" "$2" "${3:+: $3}")")
    [[ $1 != FAILED ]] || failures=$((failures + 1))
}

# fail_with <log> <message>
fail_with() {
    tail -n 20 "$1" >&2
    die "$2; all that was said is in $1"
}

supervise() {
    start_group "$@"
    wait_for_group
}

# set_up_wine: a disk of its own, and nothing of the user's.
set_up_wine() {
    local folders=()
    export HOME=$folder/home WINEPREFIX=$folder/wine WINEDEBUG=-all
    # Neither asks for what is no part of this, nor puts anything into the desktop's menus.
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
    mkdir -p "$HOME" "$folder/logs"
    if [[ ! -e $WINEPREFIX/ready ]]; then
        say "setting up wine"
        supervise wineboot --init >"$folder/logs/wine.log" 2>&1 \
            || fail_with "$folder/logs/wine.log" "wine can't be set up"
        # What tests say would go to a debugger; the environment's own variables of Qt do not come through.
        supervise wine reg add 'HKCU\Environment' /v QT_FORCE_STDERR_LOGGING /d 1 /f >>"$folder/logs/wine.log" 2>&1 \
            || fail_with "$folder/logs/wine.log" "wine can't be set up"
        wineserver --wait
        touch "$WINEPREFIX/ready"
    fi
    mapfile -t folders < <(library_folders)
    WINEPATH=$(printf 'Z:%s;' "${folders[@]}")
    export WINEPATH=${WINEPATH//\//\\}
}

# The compiler's own libraries lie beside it.
library_folders() {
    printf '%s\n' "$qt/bin" "$(dirname "$("${compiler}g++-posix" -print-file-name=libstdc++-6.dll)")" \
        "/usr/${compiler%-}/lib"
}

# notice <package> <name>: the text of a licence in the package's copyright file.
notice() {
    awk -v heading="License: $2" '
        mine && /^ / { sub(/^ \.?/, ""); print; next }
        { mine = 0 }
        $0 == heading && !found { getline; if (/^ /) { mine = found = 1; sub(/^ \.?/, ""); print } }
    ' "/usr/share/doc/$1/copyright"
}

# The licences as whoever builds on Windows has them: in a folder.
lay_out_licences() {
    mkdir -p "$folder/licences"
    cp /usr/share/common-licenses/LGPL-3 "$folder/licences/LGPL.txt"
    notice qtdeclarative5-dev BSD-3-clause >"$folder/licences/BSD.txt"
    notice fonts-mplus OFL-1.1 >"$folder/licences/OFL.txt"
}

configure_programs() {
    local lrelease libraries=()
    lrelease=$(find /usr/lib/*/cmake -name Qt5LinguistToolsConfig.cmake -printf '%h\n' -quit)
    mapfile -t libraries < <(library_folders)
    cd "$tree" || return
    cmake --preset windows -B "$build" --toolchain "$tree/cmake/WindowsToolchain.cmake" \
        -DCMAKE_FIND_ROOT_PATH="$qt" -DCMAKE_CROSSCOMPILING_EMULATOR="$(command -v wine)" \
        -DTRELVANE_LIBRARY_DIRS="$(IFS=';' && printf '%s' "${libraries[*]}")" \
        -DQt5LinguistTools_DIR="$lrelease" -DTRELVANE_FONTS_DIR=/usr/share/fonts/opentype/mplus \
        -DTRELVANE_LICENCES_DIR="$folder/licences" -DTRELVANE_WEB_ENGINE=OFF -DTRELVANE_WERROR=ON
}

# What needs no Windows comes from this machine: lrelease, the fonts, the licences.
stage_programs() {
    local log=$folder/logs/programs.log
    lay_out_licences
    say "building the programs and their tests; what it says goes to $log"
    supervise configure_programs >"$log" 2>&1 || fail_with "$log" "the programs can't be configured"
    supervise cmake --build "$build" >>"$log" 2>&1 || fail_with "$log" "the programs can't be built"
    note passed "programs and tests are built, warnings are errors"
}

# play_unpacked: the stand-in host editor plays the tutorial with nothing but what the package holds.
play_unpacked() {
    cd "$unpacked" || return
    unset WINEPATH
    "$tree/scripts/with-x" --compositor -- wine bin/trelvane-host.exe --auto --screenshots "$folder/pictures" \
        --exit-after 300
}

# The ZIP, unpacked and started.
stage_package() {
    local log=$folder/logs/package.log files=()
    unpacked=$folder/unpacked
    set_up_wine
    say "packing and starting what is unpacked; what it says goes to $log"
    rm -rf "$build/packages" "$unpacked" "$folder/pictures"
    mkdir -p "$unpacked" "$folder/pictures"
    supervise cpack --config "$build/CPackConfig.cmake" -B "$build/packages" >"$log" 2>&1 \
        || fail_with "$log" "nothing can be packed"
    files=("$build"/packages/*.zip)
    supervise unzip -q "${files[0]}" -d "$unpacked" >>"$log" 2>&1 || fail_with "$log" "the package can't be unpacked"
    unpacked=$(dirname "$(dirname "$(find "$unpacked" -name trelvane.exe)")")
    if supervise play_unpacked >"$folder/pictures/transcript.txt" 2>&1; then
        note passed "the tutorial of the unpacked ${files[0]##*/}" "pictures and transcript in $folder/pictures"
    else
        note FAILED "the tutorial of the unpacked ${files[0]##*/}" "see $folder/pictures/transcript.txt"
    fi
}

# judge <test> <log of all tests>: a test that failed.
judge() {
    local test=$1 function reasons=() functions=()
    # "ended" is added where the test has told its totals.
    mapfile -t functions < <(awk -v test="$test" '
        /^ *Start +[0-9]+: / { mine = $NF == test }
        mine && /FAIL! / { sub(/\(.*/, "", $4); print $4 }
        mine && /Totals: / { print "ended" }' "$2" | sort -u)
    if [[ " ${functions[*]} " == *" ended "* ]]; then
        for function in "${functions[@]/#ended/}"; do
            [[ -n $function ]] || continue
            reasons+=("$function: ${known_failures[$function]:-}")
            [[ -n ${known_failures[$function]:-} ]] || {
                reasons=()
                break
            }
        done
    fi
    if ((${#reasons[@]})); then
        for function in "${reasons[@]}"; do
            note "known" "$test" "$function"
        done
    else
        note FAILED "$test" "see $2"
    fi
}

# The tests of all kinds, on a screen with a window manager.
stage_tests() {
    local log=$folder/logs/tests.log word test
    set_up_wine
    [[ -e $folder/$optional_module/installed ]] \
        || known_failures[tst_Link::leavesNothing]="there is no authoring mode without Qt Quick Controls 1"
    say "running the tests under wine; what they say goes to $log"
    supervise "$tree/scripts/with-x" --compositor -- ctest --test-dir "$build" --verbose --timeout 600 \
        ${selection:+-R "$selection"} >"$log" 2>&1 || true
    while read -r word test; do
        case $word in
            Passed) note passed "$test" ;;
            *) judge "$test" "$log" ;;
        esac
    done < <(sed -nE 's|^ *[0-9]+/[0-9]+ Test +#[0-9]+: ([^ ]+) \.*\** *(Passed\|[A-Za-z]+).*|\2 \1|p' "$log")
    ((${#results[@]})) || fail_with "$log" "no test was run"
}
