/* SPDX-License-Identifier: MIT
 * What a kind of input for a session of Wayland has; wayland_input.c does the rest. */
#include "protocol.h"

/* The compositor offers this interface. */
void offered(struct wl_registry* registry, uint32_t name, const char* interface);

/* Once all is offered; 0 without what it takes. */
int begin(void);

/* A line that was read, see wayland_input.c. */
void act(char what, unsigned a, unsigned b);
