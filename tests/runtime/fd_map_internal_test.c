/* Unlinking nodes from the descriptor list. This program holds its own
   copy of the list functions, which its start code also used: 0, 1 and 2
   are in it. */
#include <fdmap.h>

#include "harness.h"

extern struct fd_map *__fd_map_head;
void __free_fd_map(struct fd_map *node);

/* The list's numbers, in list order, against those given. */
static void list_is(int line, const int *want, unsigned n) {
    int got[16];
    unsigned k = 0;
    for (struct fd_map *p = __fd_map_head; p && k < 16; p = p->next) got[k++] = p->fd;
    t_check_mem(got, k * sizeof(int), want, n * sizeof(int), "the list's numbers", __FILE__, line);
}
#define LIST_IS(...) list_is(__LINE__, (const int[]){__VA_ARGS__}, sizeof((const int[]){__VA_ARGS__}) / sizeof(int))

int main(void) {
    t_section("free from the middle, the head and the end");
    struct fd_map *zero = __fd_map_head, *three = __new_fd_map(), *four = __new_fd_map();
    CHECK(zero->fd == 0 && three->fd == 3 && four->fd == 4);
    __free_fd_map(__find_fd_map(2));
    LIST_IS(0, 1, 3, 4);
    __free_fd_map(zero);
    LIST_IS(1, 3, 4);
    __free_fd_map(four);
    CHECK(three->next == 0);
    __free_fd_map(0); /* nothing */
    LIST_IS(1, 3);

    t_section("numbers come back lowest first");
    /* The head is not 0: the new node takes 0 and goes in front. */
    struct fd_map *a = __new_fd_map();
    CHECK(a->fd == 0 && __fd_map_head == a);
    struct fd_map *b = __new_fd_map();
    CHECK(b->fd == 2 && __find_fd_map(1)->next == b);
    CHECK_EQ(__new_fd_map()->fd, 4);
    LIST_IS(0, 1, 2, 3, 4);

    t_section("an emptied list");
    while (__fd_map_head) __free_fd_map(__fd_map_head);
    CHECK(__find_fd_map(0) == 0);
    struct fd_map *first = __new_fd_map();
    CHECK(first->fd == 0 && first->next == 0 && __fd_map_head == first);
    return t_finish();
}
