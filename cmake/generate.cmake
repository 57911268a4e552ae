# Compiles the generator and runs it, at configure time: the list of generated sources is known before any target is.
#
# Sets ZELM_GENERATED_DIR and what the generator's units.cmake sets: ZELM_GENERATED_SOURCES, ZELM_GENERATED_DRIVERS,
# ZELM_GENERATED_TEST_SOURCES (relative to that directory), ZELM_BUILT and ZELM_TOTAL.

set(ZELM_GENERATED_DIR ${PROJECT_BINARY_DIR}/generated)
set(generator ${PROJECT_BINARY_DIR}/generate)

file(GLOB generator_inputs CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/src/catalog/*.[ch]pp ${PROJECT_SOURCE_DIR}/src/generate/*.[ch]pp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${generator_inputs})

set(stale FALSE)
foreach(input IN LISTS generator_inputs ITEMS ${CMAKE_CURRENT_LIST_FILE})
  if(${input} IS_NEWER_THAN ${generator})  # also true where the generator is missing
    set(stale TRUE)
  endif()
endforeach()

if(stale)
  message(STATUS "Compiling the generator")
  set(generator_sources ${generator_inputs})
  list(FILTER generator_sources INCLUDE REGEX "\\.cpp$")
  # Always for the build machine's own word size and without sanitizers, whatever the library is built for.
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} -std=c++20 -O1 -Wall -Wextra -Wshadow -I ${PROJECT_SOURCE_DIR}/src
            ${generator_sources} -o ${generator}
    COMMAND_ERROR_IS_FATAL ANY)
endif()

execute_process(COMMAND ${generator} ${ZELM_GENERATED_DIR} COMMAND_ERROR_IS_FATAL ANY)
include(${ZELM_GENERATED_DIR}/units.cmake)
