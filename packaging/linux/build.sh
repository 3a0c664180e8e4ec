# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Configuring and building one preset quietly: a progress line on a terminal, the whole output in a
# log, shown when the build fails. Sourced by ./run and ./test, which set pipefail.
: "${root:?the folder of the checkout}"

# build_preset NAME [TARGET...]: leaves the preset's programs in build/NAME.
build_preset() {
    local preset=$1 folder=$root/build/$1 log=$root/build/$1/build.log
    shift
    mkdir -p "$folder"
    if ! configured "$folder" && ! configure "$preset" "$log"; then
        show_failure "$log"
        return 1
    fi
    if ! ninja -C "$folder" "$@" 2>&1 | tee "$log" | show_progress "$preset"; then
        show_failure "$log"
        return 1
    fi
}

# Ninja itself runs cmake again when a CMakeLists.txt has changed, but knows nothing of presets, nor
# of a checkout that has been moved.
configured() {
    local folder=$1
    [[ -f $folder/build.ninja && ! $root/CMakePresets.json -nt $folder/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"
}

configure() {
    local preset=$1 log=$2
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    (cd "$root" && cmake --fresh --preset "$preset") >"$log" 2>&1
}

show_progress() {
    local preset=$1 line last=''
    while IFS= read -r line; do
        if [[ -t 1 && $line =~ ^\[([0-9]+/[0-9]+)\] ]]; then
            last=${BASH_REMATCH[1]}
            printf '\rBuilding %s: %s ' "$preset" "$last"
        fi
    done
    [[ -z $last ]] || printf '\r\e[K'
}

show_failure() {
    grep --max-count=1 --after-context=40 -E '^FAILED|error|Error' "$1" >&2 || tail -n 40 "$1" >&2
    echo "The build failed; all of its output is in $1." >&2
}
