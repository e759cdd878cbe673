# Installs the Debian packages that the build needs and this machine lacks. Sourced.
packages=(g++ cmake ninja-build ccache qt6-base-dev libsqlite3-dev libstb-dev fonts-roboto-hinted libgtest-dev libgmock-dev libbenchmark-dev)
missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    echo "Installing ${missing[*]}" >&2
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
