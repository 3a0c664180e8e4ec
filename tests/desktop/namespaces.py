# SPDX-License-Identifier: MIT
"""Mounts that one program sees, and nobody else."""
import functools
import subprocess

# A mount of our own needs no rights where users may have namespaces: user_namespaces(7).
NAMESPACE = ("unshare", "--user", "--map-current-user", "--keep-caps", "--mount")
NOBODY_MAY_MOUNT = "this kernel lets nobody mount in a namespace of their own"


@functools.lru_cache(maxsize=None)
def may_mount():
    return subprocess.run([*NAMESPACE, "mount", "-t", "tmpfs", "tmpfs", "/mnt"], check=False,
                          capture_output=True).returncode == 0
