#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A window with one text field, to hold the focus and receive what is typed.

    text_window.py TITLE
"""
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402

window = Gtk.Window(title=sys.argv[1], default_width=300, default_height=120)
window.add(Gtk.Entry())
window.move(80, 560)
window.show_all()
Gtk.main()
