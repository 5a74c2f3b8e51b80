# What `cmake --install` puts in place: headers below include/traces, libraries, programs, and the package
# by which another project's find_package(Traces) gives Traces::Traces and Traces::Qt.
include(CMakePackageConfigHelpers)

set(TRACES_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Traces)
set(TRACES_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/traces)

# The Qt layer has an export set of its own, so that a host without Qt 6 can use the core.
function(traces_install_library target folders)
    install(TARGETS ${target} EXPORT ${target}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(EXPORT ${target}Targets NAMESPACE Traces:: DESTINATION ${TRACES_PACKAGE_DIR})
    foreach(folder IN LISTS folders)
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${folder} DESTINATION ${TRACES_HEADER_DIR}
            FILES_MATCHING PATTERN "*.h")
    endforeach()
endfunction()

traces_install_library(Traces "formats;control;chart;modes;output")
if(TARGET TracesQt)
    set_target_properties(TracesQt PROPERTIES EXPORT_NAME Qt)
    traces_install_library(TracesQt "qt")
endif()
if(TARGET TracesWidgets)
    set_target_properties(TracesWidgets PROPERTIES EXPORT_NAME Widgets)
    traces_install_library(TracesWidgets "") # its headers lie below those of the Qt layer
endif()

foreach(program traces traces-viewer)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    endif()
endforeach()

configure_package_config_file(cmake/TracesConfig.cmake.in ${PROJECT_BINARY_DIR}/TracesConfig.cmake
    INSTALL_DESTINATION ${TRACES_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TracesConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TracesConfig.cmake ${PROJECT_BINARY_DIR}/TracesConfigVersion.cmake
    DESTINATION ${TRACES_PACKAGE_DIR})
