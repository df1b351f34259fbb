# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The catalogue of many recordings, read in parallel on Dask's distributed scheduler.

`python -m sivane.archive --help` tells how to run it; docs/archive.md what it writes.
"""
