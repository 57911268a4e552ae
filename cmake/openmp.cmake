# Target zelm_openmp: LLVM's OpenMP runtime for the word size that is being built.
#
# The runtime is linked as a file: the driver's own -fopenmp looks among 64-bit libraries only, and the 32-bit runtime
# comes without the link name libomp.so.

find_library(ZELM_LIBOMP NAMES omp libomp.so.5
  HINTS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE} /usr/local/lib/${CMAKE_LIBRARY_ARCHITECTURE}
  NO_CMAKE_SYSTEM_PATH NO_CMAKE_ENVIRONMENT_PATH NO_SYSTEM_ENVIRONMENT_PATH)
if(NOT ZELM_LIBOMP AND CMAKE_SIZEOF_VOID_P EQUAL 8)
  find_library(ZELM_LIBOMP NAMES omp libomp.so.5)
endif()
if(NOT ZELM_LIBOMP)
  message(FATAL_ERROR "LLVM's OpenMP runtime libomp.so.5 was not found for ${CMAKE_LIBRARY_ARCHITECTURE}; "
    "tools/setup.sh installs it, or name it with -DZELM_LIBOMP=FILE")
endif()

add_library(zelm_openmp SHARED IMPORTED)
set_target_properties(zelm_openmp PROPERTIES IMPORTED_LOCATION ${ZELM_LIBOMP} IMPORTED_SONAME libomp.so.5)
