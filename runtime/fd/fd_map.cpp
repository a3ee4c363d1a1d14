#include "runtime/fd/fd_map.h"
#include "include/stdlib.h"

extern "C" {

constinit fd_map *__fd_map_head = nullptr;

ORV_EXPORT fd_map *__find_fd_map(int fd) {
    for (fd_map *node = __fd_map_head; node != nullptr; node = node->next)
        if (node->fd == fd) return node;
    return nullptr;
}

// The lowest free number: numbers are reused lowest first, and the list
// stays sorted.
ORV_EXPORT fd_map *__new_fd_map() {
    fd_map *node = static_cast<fd_map *>(calloc(1, sizeof(fd_map)));
    if (node == nullptr) return nullptr;
    if (__fd_map_head == nullptr || __fd_map_head->fd != 0) {
        node->next = __fd_map_head;
        __fd_map_head = node;
        return node;
    }
    fd_map *last = __fd_map_head;
    int number = 1;
    while (last->next != nullptr && last->next->fd == number) {
        last = last->next;
        ++number;
    }
    node->fd = number;
    node->next = last->next;
    last->next = node;
    return node;
}

void __free_fd_map(fd_map *node) {
    if (node == nullptr) return;
    for (fd_map **link = &__fd_map_head; *link != nullptr; link = &(*link)->next) {
        if (*link == node) {
            *link = node->next;
            break;
        }
    }
    free(node);
}

} // extern "C"
