#!/usr/bin/env bash
# Builds Orbidex (Release) and starts it.  The program lives in ~/Orbidex, its data in
# ~/Orbidex/data; pass "client" to start the network client instead, or
# "server SHARE" to start the diary server over the share folder SHARE.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/ensure-packages.sh
ensure_packages

cmake -S . -B build/release -DCMAKE_BUILD_TYPE=Release -DORBIDEX_BENCH=OFF

if [ "${1:-}" = "server" ]; then
  share="${2:?usage: ./run.sh server SHARE}"
  cmake --build build/release -j"${ORBIDEX_JOBS:-2}" --target orbidex-server
  mkdir -p "$share"
  exec build/release/tools/orbidex-server/orbidex-server "$share"
fi

cmake --build build/release -j"${ORBIDEX_JOBS:-2}" --target orbidex orbidex-client
exe=orbidex
[ "${1:-}" = "client" ] && exe=orbidex-client
home="${ORBIDEX_HOME:-$HOME/Orbidex}"
mkdir -p "$home"
cp -f "build/release/app/$exe" "$home/$exe"
cp -rf build/release/app/help "$home/"
exec "$home/$exe"
