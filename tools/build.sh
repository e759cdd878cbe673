# Configures and builds the preset in $preset, else "release": the targets in $targets, else all. Sourced.
preset="${preset:-release}"
command -v ccache >/dev/null && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --preset "$preset" >build-configure.log 2>&1 || { cat build-configure.log >&2; exit 1; }
rm -f build-configure.log
cmake --build --preset "$preset" --target ${targets:-all} 1>&2
