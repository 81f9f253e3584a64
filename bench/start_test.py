# SPDX-License-Identifier: MIT
"""How long velto takes to start, beside the least program of its kind."""
import os
import time
import unittest

from desktop import VirtualDesktop, wait_for

PAIRS = 12


class Start(unittest.TestCase):
    def test_it_is_as_fast_as_the_least_program(self):
        desktop = self.enterContext(VirtualDesktop())

        def seconds(program):
            begin = time.monotonic()
            process = desktop.run(program)
            wait_for(lambda: desktop.registered_items, what=f"the item of {program}")
            duration = time.monotonic() - begin
            process.kill()
            process.wait()
            wait_for(lambda: not desktop.registered_items, what="the end of the item")
            return duration

        programs = os.environ["VELTO_BIN"], os.environ["FLOOR_BIN"]
        pairs = [[seconds(program) for program in programs] for _ in range(PAIRS)]
        of_velto, of_floor = map(min, zip(*pairs))  # what a busy machine disturbed least

        print(f"\nstart-up: {of_velto * 1000:.0f} ms, the floor {of_floor * 1000:.0f} ms")
        self.assertLess(of_velto, 2 * of_floor)


if __name__ == "__main__":
    unittest.main()
