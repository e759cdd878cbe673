# Installs the Debian packages that the build needs and this machine lacks. Sourced.
packages=(g++ cmake ninja-build ccache qt6-base-dev libsqlite3-dev libssl-dev libcli11-dev libxcb1-dev zlib1g-dev fonts-roboto-hinted libgtest-dev libgmock-dev libbenchmark-dev)
# One test shows the windows on a display of its own. It is left out where these cannot be had.
screenTools=(xvfb openbox xdotool x11-utils)

installMissing() {
    local missing=() root=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing ${missing[*]}" >&2
    "${root[@]}" apt-get update -qq &&
        "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
            "${missing[@]}" >/dev/null
}

installMissing "${packages[@]}"
# Whoever names no targets builds the tests too.
if [ -z "${targets:-}" ]; then
    installMissing "${screenTools[@]}" || echo "Without ${screenTools[*]} the test of the windows is left out." >&2
fi
