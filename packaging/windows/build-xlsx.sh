#!/bin/sh
# Builds for Windows, as a static library, what writes workbooks, from the source of Debian's own package.
# Done once: half a minute. The result stands in the cache folder (QUILLOMAT_CACHE, or ~/.cache/quillomat),
# as xlsx-windows.
. "$(dirname "$0")/../../cmake/setup.sh"
. "$(dirname "$0")/debian-source.sh"

debian_library libxlsxwriter xlsx
