# The accuracy of the quad functions against MPFR: a host program writes
# arguments and results to 212 bits, a program built against liborv
# measures the relative errors in units of 2^-106 and prints the table that
# docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
if(ORV_MPFR AND ORV_GMP)
  orv_reference_accuracy(quad_accuracy quad_refs quad_accuracy quad_functions)
  list(APPEND ORV_BENCH_RUNS quad_accuracy)
endif()
