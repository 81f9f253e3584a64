/* SPDX-License-Identifier: MIT
 * A pointer for wlroots. */
#include "wayland_input.h"

#include <string.h>
#include <time.h>

enum { width = 1280, height = 800, firstButton = 0x110 };

static struct zwlr_virtual_pointer_manager_v1* manager;
static struct zwlr_virtual_pointer_v1* pointer;

static uint32_t now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (uint32_t)(time.tv_sec * 1000 + time.tv_nsec / 1000000);
}

void offered(struct wl_registry* registry, uint32_t name, const char* interface)
{
    if (strcmp(interface, zwlr_virtual_pointer_manager_v1_interface.name) == 0)
        manager = wl_registry_bind(registry, name, &zwlr_virtual_pointer_manager_v1_interface, 1);
}

int begin(void)
{
    if (manager)
        pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(manager, NULL);
    return pointer != NULL;
}

void act(char what, unsigned a, unsigned b)
{
    if (what == 'm')
        zwlr_virtual_pointer_v1_motion_absolute(pointer, now(), a, b, width, height);
    else
        zwlr_virtual_pointer_v1_button(pointer, now(), firstButton + a, what == 'd');
    zwlr_virtual_pointer_v1_frame(pointer);
}
