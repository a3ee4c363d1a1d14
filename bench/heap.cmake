orv_add_bench(heap heap.c ROUNDS 5)
