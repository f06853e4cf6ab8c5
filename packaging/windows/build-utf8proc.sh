#!/bin/sh
# Builds for Windows, as a static library, what knows the characters of Unicode, from the source of
# Debian's own package. Done once: some seconds. The result stands in the cache folder (QUILLOMAT_CACHE, or
# ~/.cache/quillomat), as utf8proc-windows.
. "$(dirname "$0")/../../cmake/setup.sh"
. "$(dirname "$0")/debian-source.sh"

debian_library utf8proc utf8proc
