orv_add_bench(math math.c ROUNDS 3 HOST_LIBS -lm)
