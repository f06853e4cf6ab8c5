#!/bin/sh
# Builds for Windows, as a static library, what guesses the encoding of a text, from the source of Debian's
# own package. Done once: some seconds. The result stands in the cache folder (QUILLOMAT_CACHE, or
# ~/.cache/quillomat), as uchardet-windows.
. "$(dirname "$0")/../../cmake/setup.sh"
. "$(dirname "$0")/debian-source.sh"

debian_library uchardet uchardet -DBUILD_BINARY=OFF
