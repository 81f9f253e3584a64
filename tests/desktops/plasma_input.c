/* SPDX-License-Identifier: MIT
 * A pointer and a keyboard for a session of KWin on Wayland: reads lines of a letter and numbers. m X Y moves, d B and
 * u B press and release button B (0 left, 1 right, 2 middle), p K and r K press and release the key with the code K of
 * Linux, s MS waits. */
#include "fake_input.h"

#include <stdio.h>
#include <string.h>
#include <unistd.h>

enum { firstButton = 0x110 };

static struct org_kde_kwin_fake_input* input;

static void found(void* data, struct wl_registry* registry, uint32_t name, const char* interface, uint32_t version)
{
    if (strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0)
        input = wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4);
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
    if (!input)
        return 1;
    org_kde_kwin_fake_input_authenticate(input, "stories", "to click and type");

    char line[100];
    while (fgets(line, sizeof line, stdin)) {
        unsigned a = 0, b = 0;
        sscanf(line + 1, "%u %u", &a, &b);
        if (line[0] == 's')
            usleep(a * 1000);
        else if (line[0] == 'm')
            org_kde_kwin_fake_input_pointer_motion_absolute(
                input, wl_fixed_from_int((int)a), wl_fixed_from_int((int)b));
        else if (line[0] == 'd' || line[0] == 'u')
            org_kde_kwin_fake_input_button(input, firstButton + a, line[0] == 'd');
        else
            org_kde_kwin_fake_input_keyboard_key(input, a, line[0] == 'p');
        wl_display_roundtrip(display);
    }
    return 0;
}
