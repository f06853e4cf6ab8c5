#!/bin/sh
# Runs a Windows program here. Usage: wine.sh PREFIX PROGRAM [ARGUMENT...]
# PREFIX is a folder that stands for the Windows machine: its drive C, its registry. It is made when it
# is missing, which takes some 15 seconds.
set -eu
mkdir -p "$1"
WINEPREFIX=$(cd "$1" && pwd)
shift
export WINEPREFIX
export WINEDEBUG=-all
# No window about missing extras, and no menu entries for the user of this machine.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
exec wine "$@"
