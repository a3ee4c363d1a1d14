orv_add_bench(math math.c ROUNDS 7 HOST_LIBS -lm)
