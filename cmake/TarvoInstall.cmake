# What `cmake --install` puts under a prefix: the libraries, the headers of the layers a module or
# a host builds against, the CMake package and pkg-config files, the tools with the bundled
# module and design. The layout is fixed (lib, include/tarvo, bin, share/tarvo) so that every
# installed file finds the others relative to itself, wherever the prefix is.
include(CMakePackageConfigHelpers)

set(TARVO_PACKAGE_DIR lib/cmake/TarvoDesign)

set_target_properties(tarvo_rtl PROPERTIES EXPORT_NAME rtl INSTALL_RPATH "$ORIGIN")
set_target_properties(tarvo_platform PROPERTIES EXPORT_NAME platform INSTALL_RPATH "$ORIGIN")
set_target_properties(tarvo_design PROPERTIES EXPORT_NAME design INSTALL_RPATH "$ORIGIN")
install(TARGETS tarvo_rtl tarvo_platform tarvo_design EXPORT TarvoDesignTargets LIBRARY DESTINATION lib)
install(EXPORT TarvoDesignTargets NAMESPACE Tarvo:: DESTINATION ${TARVO_PACKAGE_DIR})

foreach(layer rtl containers reflection runtime platform design forms)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${layer}/ DESTINATION include/tarvo/${layer}
    FILES_MATCHING PATTERN "*.h" PATTERN "instances" EXCLUDE)
endforeach()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TarvoDesignConfig.cmake.in
  ${CMAKE_BINARY_DIR}/TarvoDesignConfig.cmake INSTALL_DESTINATION ${TARVO_PACKAGE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/TarvoDesignConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/TarvoDesignConfig.cmake ${CMAKE_BINARY_DIR}/TarvoDesignConfigVersion.cmake
  ${CMAKE_CURRENT_LIST_DIR}/TarvoComponentModule.cmake DESTINATION ${TARVO_PACKAGE_DIR})

foreach(pc tarvo-rtl tarvo-design)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${pc}.pc.in ${CMAKE_BINARY_DIR}/${pc}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${pc}.pc DESTINATION lib/pkgconfig)
endforeach()

# The tools find the bundled module in lib/tarvo and the design in share/tarvo/designs.
set_target_properties(tarvo-inspect tarvo-designer PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
install(TARGETS tarvo-inspect tarvo-designer RUNTIME DESTINATION bin)
install(TARGETS tarvo_samples LIBRARY DESTINATION lib/tarvo)
install(FILES ${PROJECT_SOURCE_DIR}/samples/designs/sample.json DESTINATION share/tarvo/designs)
