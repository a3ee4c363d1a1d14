# The accuracy of the quad functions against MPFR: a host program writes
# arguments and results to 212 bits, a program built against liborv
# measures the relative errors in units of 2^-106 and prints the table that
# docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
find_library(ORV_MPFR mpfr)
find_library(ORV_GMP gmp)
if(ORV_MPFR AND ORV_GMP)
  set(qrefs_tool ${CMAKE_CURRENT_BINARY_DIR}/quad_refs)
  set(qrefs_file ${CMAKE_CURRENT_BINARY_DIR}/quad_refs.bin)
  set(qacc_prog ${CMAKE_CURRENT_BINARY_DIR}/quad_accuracy-orv)
  set(qfunctions ${CMAKE_SOURCE_DIR}/tools/quad_functions.h)
  add_custom_command(OUTPUT ${qrefs_tool}
    COMMAND ${CMAKE_C_COMPILER} -O2 ${CMAKE_SOURCE_DIR}/tools/quad_refs.c
            ${ORV_MPFR} ${ORV_GMP} -lm -o ${qrefs_tool}
    DEPENDS ${CMAKE_SOURCE_DIR}/tools/quad_refs.c ${qfunctions})
  add_custom_command(OUTPUT ${qrefs_file}
    COMMAND ${qrefs_tool} binary 20000 ${qrefs_file}
    DEPENDS ${qrefs_tool}
    COMMENT "Computing MPFR references of the quad functions")
  add_custom_command(OUTPUT ${qacc_prog}
    COMMAND ${ORV_CC} -O2 ${CMAKE_CURRENT_SOURCE_DIR}/quad_accuracy.c -o ${qacc_prog}
    DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/quad_accuracy.c ${qfunctions} orvdll kernel32
            ${ORV_TESSAR} ${ORV_LIB_DIR}/crt0.o)
  add_custom_target(quad_accuracy
    COMMAND ${qacc_prog} ${qrefs_file}
    DEPENDS ${qacc_prog} ${qrefs_file}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} USES_TERMINAL)
  list(APPEND ORV_BENCH_RUNS quad_accuracy)
endif()
