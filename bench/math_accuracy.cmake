# The accuracy of the double and float families against MPFR: a host
# program writes arguments and correctly rounded results, a program built
# against liborv measures its errors in ulps and prints the table that
# docs/MATH_ACCURACY.md holds. Needs libmpfr-dev on the host.
if(ORV_MPFR AND ORV_GMP)
  orv_reference_accuracy(math_accuracy math_refs math_accuracy math_functions)
  list(APPEND ORV_BENCH_RUNS math_accuracy)
endif()
