/* SPDX-License-Identifier: MIT
 * A pointer for a session of wlroots: reads lines of a letter and numbers. m X Y moves, d B and u B press and release
 * button B (0 left, 1 right, 2 middle), s MS waits. */
#include "sway_pointer.h"

#include <stdio.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

enum { width = 1280, height = 800, firstButton = 0x110 };

static struct zwlr_virtual_pointer_manager_v1* manager;

static void found(void* data, struct wl_registry* registry, uint32_t name, const char* interface, uint32_t version)
{
    if (strcmp(interface, zwlr_virtual_pointer_manager_v1_interface.name) == 0)
        manager = wl_registry_bind(registry, name, &zwlr_virtual_pointer_manager_v1_interface, 1);
}

static void gone(void* data, struct wl_registry* registry, uint32_t name) { }

static uint32_t now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (uint32_t)(time.tv_sec * 1000 + time.tv_nsec / 1000000);
}

int main(void)
{
    static const struct wl_registry_listener listener = {found, gone};
    struct wl_display* display = wl_display_connect(NULL);
    if (!display)
        return 1;
    wl_registry_add_listener(wl_display_get_registry(display), &listener, NULL);
    wl_display_roundtrip(display);
    if (!manager)
        return 1;
    struct zwlr_virtual_pointer_v1* pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(manager, NULL);

    char line[100];
    while (fgets(line, sizeof line, stdin)) {
        unsigned a = 0, b = 0;
        sscanf(line + 1, "%u %u", &a, &b);
        if (line[0] == 's') {
            usleep(a * 1000);
            continue;
        }
        if (line[0] == 'm')
            zwlr_virtual_pointer_v1_motion_absolute(pointer, now(), a, b, width, height);
        else
            zwlr_virtual_pointer_v1_button(pointer, now(), firstButton + a, line[0] == 'd');
        zwlr_virtual_pointer_v1_frame(pointer);
        wl_display_roundtrip(display);
    }
    return 0;
}
