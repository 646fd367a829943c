# tarvo_add_component_module(NAME SOURCES...)
#
# Builds a component module: a shared library that a host opens at run time, whose static
# registrations publish its classes and put them on the palette, and that the host closes again
# when it no longer needs it. The module links the runtime and carries the flags such a module
# needs:
#   - its own symbols hidden, so that two modules never share their classes' statics or records
#     (the runtime's headers keep theirs visible, so that the runtime's inline code and vtables
#     stay one with the runtime's and outlive the module);
#   - no GNU unique symbols (GCC), which would keep the library mapped after it is closed;
#   - no undefined symbols at link time (-z defs), so that a class declared with TARVO_CLASS but
#     never implemented with TARVO_IMPLEMENT_CLASS fails the build, not the host's load.
function(tarvo_add_component_module NAME)
  if(NOT ARGN)
    message(FATAL_ERROR "tarvo_add_component_module(${NAME}) was given no source files")
  endif()
  add_library(${NAME} MODULE ${ARGN})
  target_link_libraries(${NAME} PRIVATE Tarvo::rtl)
  set_target_properties(${NAME} PROPERTIES CXX_VISIBILITY_PRESET hidden)
  target_compile_options(${NAME} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  # Under clang's sanitizers the sanitizer runtime lives in the executable alone, so a module
  # keeps undefined references to it until it is loaded.
  get_property(options DIRECTORY PROPERTY COMPILE_OPTIONS)
  if(NOT (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND "${options} ${CMAKE_CXX_FLAGS}" MATCHES "-fsanitize"))
    target_link_options(${NAME} PRIVATE LINKER:-z,defs)
  endif()
endfunction()
