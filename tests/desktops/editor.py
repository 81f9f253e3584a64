# SPDX-License-Identifier: MIT
"""A text window at the bottom left that keeps what is typed into it in the file /tmp/typed."""
import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402


def store(buffer):
    with open("/tmp/typed", "w") as file:
        file.write(buffer.get_text(buffer.get_start_iter(), buffer.get_end_iter(), False))


window = Gtk.Window(title="editor", default_width=400, default_height=150)
text = Gtk.TextView()
text.get_buffer().connect("changed", store)
store(text.get_buffer())
window.add(text)
window.move(40, 600)
window.show_all()
Gtk.main()
