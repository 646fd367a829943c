#pragma once
// What a library shows to its users, hosts and component modules. The design package is built
// with its symbols hidden and exports only what carries TARVO_API. The runtime and platform
// headers declare themselves visible (#pragma GCC visibility push(default)), so that a library
// built hidden still reaches them in the libraries that define them.
#define TARVO_API __attribute__((visibility("default")))
