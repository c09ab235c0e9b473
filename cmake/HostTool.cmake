# Programs of ours that run during the build, as the maker of the data files does. They are plain C++, so a cross build
# compiles them once more for the machine that builds.

find_program(TIDEWRIGHT_HOST_CXX NAMES c++ g++ clang++ REQUIRED)

# add_host_tool(NAME SOURCES...): afterwards ${NAME}_COMMAND runs the tool and ${NAME}_DEPENDS is what a rule that runs it
# depends on.
function(add_host_tool name)
    if(CMAKE_CROSSCOMPILING)
        set(program "${CMAKE_CURRENT_BINARY_DIR}/host-${name}")
        set(sources)
        foreach(source IN LISTS ARGN)
            get_filename_component(source "${source}" ABSOLUTE)
            list(APPEND sources "${source}")
        endforeach()
        file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h" "${PROJECT_SOURCE_DIR}/gamefiles/*.h")
        add_custom_command(
            OUTPUT "${program}"
            COMMAND "${TIDEWRIGHT_HOST_CXX}" -std=c++20 -O2 -I "${PROJECT_SOURCE_DIR}" ${sources} -o "${program}"
            DEPENDS ${sources} ${headers}
            COMMENT "Compiling ${name} for the building machine"
            VERBATIM)
        set(${name}_COMMAND "${program}" PARENT_SCOPE)
        set(${name}_DEPENDS "${program}" PARENT_SCOPE)
    else()
        add_executable(${name} ${ARGN})
        target_link_libraries(${name} PRIVATE project_options)
        set(${name}_COMMAND $<TARGET_FILE:${name}> PARENT_SCOPE)
        set(${name}_DEPENDS ${name} PARENT_SCOPE)
    endif()
endfunction()
