orv_add_bench(quadfn quadfn.c ROUNDS 5 HOST_LIBS -lquadmath)
