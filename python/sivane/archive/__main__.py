# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""`python -m sivane.archive`."""

import sys

from .command_line import main

# The workers' processes import this module under another name.
if __name__ == "__main__":
    sys.exit(main())
