# shellcheck shell=bash
# Shared by ./run and ./test; sourced by them with the project's folder as the current one.

# Names of the packages of the sections given, one a line.
ListPackages() {
    local section
    for section in "$@"; do
        sed -n "/^\[$section\]/,/^\[/{/^[a-z]/p}" Packaging/packages-debian.txt
    done
}

# The packages of the sections given that are not installed.
ListMissing() {
    local wanted installed
    wanted=$(ListPackages "$@" | sort)
    # dpkg-query fails when one of the names is unknown to it, and still prints the others.
    # shellcheck disable=SC2086
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null |
        sed -n 's/^installed //p' | sort -u || true)
    comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$installed")
}

# Prints why the packages could not be installed, and which; ends the script.
StopForPackages() {
    {
        echo "$1 Install these packages with the system's package manager and start again:"
        # shellcheck disable=SC2086
        printf '    %s\n' $2
    } >&2
    exit 1
}

# Installs what is missing of the sections given. KORVEX_SKIP_PACKAGES=1 leaves that to whoever calls.
InstallPackages() {
    [ -z "${KORVEX_SKIP_PACKAGES:-}" ] || return 0
    local missing asRoot=""
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        StopForPackages "This system has no apt; KORVEX_SKIP_PACKAGES=1 skips this check." "$(ListPackages "$@")"
    fi
    missing=$(ListMissing "$@" | tr '\n' ' ')
    [ -n "${missing// /}" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || StopForPackages "Neither root nor sudo is at hand." "$missing"
        asRoot="sudo"
        [ -t 0 ] || asRoot="sudo -n"
    fi
    echo "Installing: $missing" >&2
    # shellcheck disable=SC2086
    {
        $asRoot apt-get update -qq &&
            $asRoot env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
    } >&2 || StopForPackages "The package manager could not install everything." "$missing"
}

# Configures the preset when it never was, or when its definition changed. Quiet unless it fails.
Configure() {
    local preset=$1 folder=build/$1
    if [ -f "$folder/build.ninja" ] && [ ! CMakePresets.json -nt "$folder/build.ninja" ]; then
        return 0
    fi
    mkdir -p "$folder"
    echo "Configuring ($preset) ..." >&2
    if ! cmake --preset "$preset" >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log" >&2
        echo "The project could not be configured; the messages above say why." >&2
        exit 1
    fi
    # An older file than the presets would be configured again at every start.
    touch "$folder/build.ninja"
}
