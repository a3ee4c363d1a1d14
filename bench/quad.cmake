orv_add_bench(quad quad.c ROUNDS 3 HOST_LIBS -lquadmath)
