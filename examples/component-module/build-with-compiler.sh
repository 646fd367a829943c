#!/bin/sh
# Builds the module without CMake, from the pkg-config file of an installed SDK.
set -e
"${CXX:-g++}" -shared -fPIC -fvisibility=hidden -fno-gnu-unique -Wl,-z,defs \
  $(pkg-config --cflags tarvo-rtl) Climate.cpp -o libclimate.so $(pkg-config --libs tarvo-rtl)
