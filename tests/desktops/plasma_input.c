/* SPDX-License-Identifier: MIT
 * A pointer and a keyboard for KWin. */
#include "wayland_input.h"

#include <string.h>

enum { firstButton = 0x110 };

static struct org_kde_kwin_fake_input* input;

void offered(struct wl_registry* registry, uint32_t name, const char* interface)
{
    if (strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0)
        input = wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4);
}

int begin(void)
{
    if (input)
        org_kde_kwin_fake_input_authenticate(input, "stories", "to click and type");
    return input != NULL;
}

void act(char what, unsigned a, unsigned b)
{
    if (what == 'm')
        org_kde_kwin_fake_input_pointer_motion_absolute(input, wl_fixed_from_int((int)a), wl_fixed_from_int((int)b));
    else if (what == 'd' || what == 'u')
        org_kde_kwin_fake_input_button(input, firstButton + a, what == 'd');
    else
        org_kde_kwin_fake_input_keyboard_key(input, a, what == 'p');
}
