#!/bin/sh
# Begins and ends the Wine session of the tests, in the prefix of WINEPREFIX:
#
#     session.sh begin WINE PROGRAM       makes the prefix and starts the program that keeps the session alive
#     session.sh end WINESERVER
set -eu
case $1 in
begin)
    "$2" wineboot --init </dev/null >/dev/null 2>&1
    "$2" "$3" </dev/null >/dev/null 2>&1 &
    ;;
end) "$2" --kill ;;
*) exit 2 ;;
esac
