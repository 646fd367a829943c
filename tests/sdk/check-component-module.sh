#!/usr/bin/env bash
# Installs the build to a fresh prefix and builds the example component module against it, as an
# author would: with CMake and find_package, and with the compiler and pkg-config alone. Both
# builds must load in the installed tarvo-inspect and show the rows expected; a program using the
# design package must build against the installed headers and libraries.
#   check-component-module.sh BUILD_DIR SOURCE_DIR CXX_COMPILER [PROGRAM_FLAGS]
# PROGRAM_FLAGS are those a program needs to link against this build's libraries (a sanitized
# build's libraries want the sanitizer's runtime in the program).
set -euo pipefail
build=$1 source=$2 compiler=$3 program_flags=${4:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
example=$source/examples/component-module
prefix=$work/prefix

cmake --install "$build" --prefix "$prefix" >/dev/null

echo "== the example with CMake"
cmake -S "$example" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
cmake --build "$work/cmake" >/dev/null

echo "== the example with g++ and pkg-config"
cp -r "$example" "$work/by-hand"
(cd "$work/by-hand" && PKG_CONFIG_PATH="$prefix/lib/pkgconfig" CXX=g++ ./build-with-compiler.sh)

inspect() { "$prefix/bin/tarvo-inspect" --design "$example/thermostat.json" "$@"; }
for module in "$work/cmake/libclimate.so" "$work/by-hand/libclimate.so"; do
  echo "== rows of $module"
  diff -u "$source/tests/sdk/climate-rows.txt" <(inspect --module "$module" --select LivingRoom --expand Schedule)
  inspect --module "$module" --list-classes | grep -qx "TThermostat (Climate)"
  # A value the setter refuses is an error that names it, and the tool exits with 2.
  set +e
  refused=$(inspect --module "$module" --select LivingRoom --set Target=40 2>&1)
  status=$?
  set -e
  [ "$status" -eq 2 ] && [ "$refused" = "error: The target must lie between 5 and 30 °C" ] ||
    { echo "refused write: exit $status, \"$refused\""; exit 1; }
done

echo "== a program on the design package"
mkdir "$work/host"
cat >"$work/host/CMakeLists.txt" <<'CMAKE'
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES CXX)
find_package(TarvoDesign REQUIRED)
add_executable(host Host.cpp)
target_link_libraries(host PRIVATE Tarvo::design)
CMAKE
cat >"$work/host/Host.cpp" <<'CPP'
#include "design/Designer.h"
#include "design/editors/ColorEditors.h"
int main() { return Tarvo::TColorPropertyEditor::ClassInfo() == nullptr; }
CPP
cmake -S "$work/host" -B "$work/host/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" \
  -DCMAKE_CXX_FLAGS="$program_flags" >/dev/null
cmake --build "$work/host/build" >"$work/host/build.log" 2>&1 || { cat "$work/host/build.log"; exit 1; }

echo "== a class declared but never implemented fails the module's link, by name"
mkdir "$work/forgotten"
cat >"$work/forgotten/CMakeLists.txt" <<'CMAKE'
cmake_minimum_required(VERSION 3.25)
project(Forgotten LANGUAGES CXX)
find_package(TarvoDesign REQUIRED)
tarvo_add_component_module(forgotten Forgotten.cpp)
CMAKE
cat >"$work/forgotten/Forgotten.cpp" <<'CPP'
#include "runtime/ComponentModule.h"
namespace Climate {
using namespace Tarvo;
class TForgotten : public TComponent {
  TARVO_CLASS(TForgotten, TComponent)
public:
  using TComponent::TComponent;
};
TARVO_REGISTER_COMPONENTS("Climate", TForgotten)
} // namespace Climate
CPP
cmake -S "$work/forgotten" -B "$work/forgotten/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
if link=$(cmake --build "$work/forgotten/build" 2>&1); then
  echo "a module without TARVO_IMPLEMENT_CLASS linked"; exit 1
fi
grep -Eq "undefined (reference to|symbol).*Climate::TForgotten::ClassInfo\(\)" <<<"$link" ||
  { echo "the failed link does not name the class:"; echo "$link"; exit 1; }

echo "== the installed SDK builds and loads the example"
