# Configures and builds the preset in $preset, else "release": the targets in $targets, else all. Sourced.
preset="${preset:-release}"
command -v ccache >/dev/null && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
# What a cache must overlook to take files with a precompiled header.
export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros,include_file_mtime,include_file_ctime}"
cmake --preset "$preset" >build-configure.log 2>&1 || { cat build-configure.log >&2; exit 1; }
rm -f build-configure.log
cmake --build --preset "$preset" --target ${targets:-all} 1>&2
