/* SPDX-License-Identifier: MIT
 * Input for a session of Wayland: reads lines of a letter and numbers. m X Y moves the pointer, d B and u B press and
 * release button B (0 left, 1 right, 2 middle), p K and r K press and release the key with the code K of Linux, s MS
 * waits. */
#include "wayland_input.h"

#include <stdio.h>
#include <unistd.h>

static void found(void* data, struct wl_registry* registry, uint32_t name, const char* interface, uint32_t version)
{
    offered(registry, name, interface);
}

static void gone(void* data, struct wl_registry* registry, uint32_t name) { }

int main(void)
{
    static const struct wl_registry_listener listener = {found, gone};
    struct wl_display* display = wl_display_connect(NULL);
    if (!display)
        return 1;
    wl_registry_add_listener(wl_display_get_registry(display), &listener, NULL);
    wl_display_roundtrip(display);
    if (!begin())
        return 1;

    char line[100];
    while (fgets(line, sizeof line, stdin)) {
        unsigned a = 0, b = 0;
        sscanf(line + 1, "%u %u", &a, &b);
        if (line[0] == 's')
            usleep(a * 1000);
        else
            act(line[0], a, b);
        wl_display_roundtrip(display);
    }
    return 0;
}
