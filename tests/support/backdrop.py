#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What lies behind all windows: a compositing window manager does not show the colour of the root window.

    backdrop.py WIDTH HEIGHT TOP_COLOUR BOTTOM_COLOUR
"""
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

width, height, top, bottom = sys.argv[1:]
style = Gtk.CssProvider()
style.load_from_data(f"window {{ background: linear-gradient(to bottom, {top}, {bottom}); }}".encode())
window = Gtk.Window(title="backdrop", type_hint=Gdk.WindowTypeHint.DESKTOP, accept_focus=False)
window.get_style_context().add_provider(style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
scale = window.get_scale_factor()
window.set_default_size(int(width) // scale, int(height) // scale)
window.show_all()
window.move(0, 0)
Gtk.main()
