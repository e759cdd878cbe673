# What the cross build for Windows stands on, made once below build/windows: Qt, SQLite, GoogleTest, Google Benchmark
# and the headers of the libraries that are headers alone. Sourced from the project's folder; sets $windowsQt and
# $windowsPrefix.
windowsPackages=(g++-mingw-w64-x86-64-posix mingw-w64-tools libz-mingw-w64-dev cmake ninja-build ccache dpkg-dev
    xz-utils qt6-base-dev qt6-base-dev-tools libstb-dev libcli11-dev libgtest-dev libgmock-dev googletest
    fonts-roboto-hinted nsis zip)

windowsFolder=$PWD/build/windows
windowsPrefix=$windowsFolder/prefix
windowsQt=$windowsFolder/qt6-mingw64
crossTriple=x86_64-w64-mingw32

# fetchSource PACKAGE...: unpacks Debian's source packages into the folder at hand. The machine's own lists of packages
# stay as they are.
fetchSource() {
    local apt=$windowsFolder/apt
    mkdir -p "$apt/lists/partial"
    echo "deb-src http://deb.debian.org/debian bookworm main" >"$apt/sources.list"
    local options=(-o "Dir::Etc::sourcelist=$apt/sources.list" -o Dir::Etc::sourceparts=/dev/null
        -o "Dir::State::lists=$apt/lists" -o APT::Sandbox::User=root)
    apt-get "${options[@]}" -qq update
    apt-get "${options[@]}" -qq source "$@"
}

# makeOnce NAME: runs the function make_NAME in a folder of its own, once.
makeOnce() {
    local done=$windowsFolder/made/$1
    [ -e "$done" ] && return 0
    echo "Making $1 for Windows" >&2
    rm -rf "${windowsFolder:?}/work/$1"
    mkdir -p "$windowsFolder/work/$1" "$windowsFolder/made" "$windowsPrefix/include" "$windowsPrefix/lib"
    (cd "$windowsFolder/work/$1" && "make_$1") >"$windowsFolder/$1.log" 2>&1 ||
        { tail -n 40 "$windowsFolder/$1.log" >&2; return 1; }
    rm -rf "${windowsFolder:?}/work/$1"
    touch "$done"
}

# SQLite as one file, from its sources in the folder at hand.
makeAmalgamation() {
    mkdir amalgamation && (cd amalgamation && ../sqlite3-*/configure --disable-tcl && make sqlite3.c)
}

make_toolchain() {
    cat >"$windowsFolder/toolchain.cmake" <<EOF
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER $crossTriple-gcc-posix)
set(CMAKE_CXX_COMPILER $crossTriple-g++-posix)
set(CMAKE_RC_COMPILER $crossTriple-windres)
set(CMAKE_FIND_ROOT_PATH $windowsPrefix /usr/$crossTriple)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
EOF
}

# The archive that MORVANE_WINDOWS_QT names, else Debian's sources, a quarter of an hour.
make_qt() {
    if [ -n "${MORVANE_WINDOWS_QT:-}" ]; then
        rm -rf "$windowsQt"
        tar -xJf "$MORVANE_WINDOWS_QT" -C "$windowsFolder"
        [ -d "$windowsQt" ]
        return
    fi
    fetchSource qt6-base sqlite3
    makeAmalgamation # Debian's package leaves SQLite's own copy out
    local source
    source=$(echo "$PWD"/qt6-base-*/)
    mkdir -p "$source/src/3rdparty/sqlite"
    cp amalgamation/sqlite3.c amalgamation/sqlite3.h "$source/src/3rdparty/sqlite/"
    local off=(vulkan dbus tabletevent printsupport concurrent direct2d directwrite3 system_zlib system_png
        system_jpeg system_freetype system_harfbuzz system_pcre2 system_sqlite system_doubleconversion icu zstd openssl
        sql_odbc sql_mysql sql_psql pkg_config)
    cmake -G Ninja -S "$source" -B build -DCMAKE_TOOLCHAIN_FILE="$windowsFolder/toolchain.cmake" \
        -DQT_QMAKE_TARGET_MKSPEC=win32-g++ "-DQT_QMAKE_DEVICE_OPTIONS=CROSS_COMPILE=$crossTriple-" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
        -DCMAKE_INSTALL_PREFIX="$windowsQt" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DINPUT_opengl=no \
        -DINPUT_openssl=no -DFEATURE_schannel=ON -DFEATURE_sql_sqlite=ON $(printf -- "-DFEATURE_%s=OFF " "${off[@]}")
    cmake --build build
    cmake --install build --strip
}

make_sqlite() {
    fetchSource sqlite3
    makeAmalgamation
    $crossTriple-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA=1 -c amalgamation/sqlite3.c
    $crossTriple-ar rcs "$windowsPrefix/lib/libsqlite3.a" sqlite3.o
    cp amalgamation/sqlite3.h "$windowsPrefix/include/"
}

crossBuild() {
    cmake -G Ninja -S "$1" -B build -DCMAKE_TOOLCHAIN_FILE="$windowsFolder/toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$windowsPrefix" "${@:2}"
    cmake --build build
    cmake --install build
}

make_googletest() {
    crossBuild /usr/src/googletest
}

# Asked for its version, the library would ask git for that of the project around it.
make_benchmark() {
    fetchSource benchmark
    crossBuild "$(echo "$PWD"/benchmark-*/)" -DGIT_VERSION=1.7.1 -DBENCHMARK_ENABLE_TESTING=OFF \
        -DBENCHMARK_ENABLE_WERROR=OFF
}

# Copied, for the host's own include folder must not be seen.
make_headers() {
    mkdir -p "$windowsPrefix/include/stb"
    cp -r /usr/include/CLI "$windowsPrefix/include/"
    cp /usr/include/stb/stb_dxt.h "$windowsPrefix/include/stb/"
}

makeWindowsPrefix() {
    local part
    for part in toolchain qt sqlite googletest benchmark headers; do
        makeOnce "$part" || return 1
    done
}
