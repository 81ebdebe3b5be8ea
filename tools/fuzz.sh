#!/usr/bin/env bash
# Feeds broken files to the readers: builds each target of tests/fuzz with clang and runs it for
# SECONDS (30). Inputs that broke one are left in build/fuzz.
#
# usage: tools/fuzz.sh [SECONDS] [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/pacchetti.sh
install_missing clang libclang-rt-14-dev

seconds=${1:-30}
shift || true
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for source in tests/fuzz/*.cpp; do
        name=${source##*/}
        targets+=("${name%.cpp}")
    done
fi

out=build/fuzz
flags=(-std=c++20 -g -O1 -fno-omit-frame-pointer -fsanitize=fuzzer-no-link,address,undefined
       -fno-sanitize-recover=undefined -Wno-undefined-var-template -Isrc -Itests)
mkdir -p "$out/obj"
export TMPDIR=$out
[ -d /dev/shm ] && TMPDIR=/dev/shm # the targets write their input to files

objects=()
for source in src/base/*.cpp src/records/*.cpp src/link/*.cpp src/data/*.cpp; do
    object=$out/obj/$(echo "${source#src/}" | tr / _).o
    objects+=("$object")
    clang++ "${flags[@]}" -MMD -c "$source" -o "$object"
done

# Files of the right size to begin with: from nothing the fuzzer would take long to get there.
mkdir -p "$out/corpus-pannelli"
kind=0
for size in 2096 5094 12676 30000 17770; do # EPN, EAM, EST, PTH, KSH
    { printf "\\x$kind"; head -c "$size" /dev/zero; } >"$out/corpus-pannelli/seed-$size"
    kind=$((kind + 1))
done

mkdir -p "$out/corpus-curve"
cp share/orvane/Limits/*.5SL "$out/corpus-curve"
head -c 1262 "share/orvane/Limits/CISPR 15 mains QP.5SL" >"$out/corpus-curve/earlier"

for target in "${targets[@]}"; do
    echo "== $target, $seconds s"
    clang++ "${flags[@]}" -fsanitize=fuzzer "tests/fuzz/$target.cpp" "${objects[@]}" -o "$out/$target"
    mkdir -p "$out/corpus-$target"
    log=$out/$target.log
    status=0
    "$out/$target" -max_total_time="$seconds" -max_len=40000 \
        -artifact_prefix="$out/$target-" "$out/corpus-$target" >"$log" 2>&1 || status=$?
    grep -E '^Done|ERROR|SUMMARY|runtime error|Test unit written' "$log" || true
    [ "$status" -eq 0 ]
done
