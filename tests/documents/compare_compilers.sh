#!/usr/bin/env bash
# compare_compilers.sh SOURCE_FOLDER WORK_FOLDER: builds the writer of the document with several
# compilers and optimisations; each must write the same. g++ 12 once wrote one member nine times over when
# it optimised for size, or inlined less than usual.
set -u
source=$1 work=$2
mkdir -p "$work" && cd "$work" || exit 1

includes=(-std=c++20 "-I$source/src" "-I$source/tests")
less=(--param max-inline-insns-single=1 --param max-inline-insns-auto=1 --param max-inline-insns-small=0
    --param early-inlining-insns=1)
# What the writer needs, built once.
for needed in tests/documents/write_document_program src/model/{number_text,shared_text,timestamp_text,utf8}; do
    g++ "${includes[@]}" -c "$source/$needed.cpp" -o "needed_${needed##*/}.o" || exit 1
done

# write_with NAME COMPILER OPTION...: leaves NAME.json.
write_with() {
    local name=$1
    shift
    "$@" "${includes[@]}" -c "$source/src/model/snapshot_document.cpp" -o "$name.o" &&
        g++ needed_*.o "$name.o" -o "$name" && "./$name" >"$name.json" && return
    echo "$name: could not be built or did not write"
    return 1
}

failures=0
compared=0
compare() {
    write_with "$@" || failures=$((failures + 1))
    compared=$((compared + 1))
    cmp -s gcc-O0.json "$1.json" && return
    echo "$1 writes another document than gcc-O0:"
    diff gcc-O0.json "$1.json" | head -n 20
    failures=$((failures + 1))
}

write_with gcc-O0 g++ -O0 || exit 1
grep -q '"timestamp" : ' gcc-O0.json || exit 1
compare gcc-O1 g++ -O1
compare gcc-O2 g++ -O2
compare gcc-O3 g++ -O3
compare gcc-Os g++ -Os
compare gcc-O2-less g++ -O2 "${less[@]}"
compare gcc-Os-less g++ -Os "${less[@]}"
if command -v clang++ >/dev/null; then
    compare clang-O2 clang++ -O2
    compare clang-Os clang++ -Os
else
    echo "clang++ is not installed; compared what g++ builds alone"
fi
echo "$compared documents compared"
[ "$failures" = 0 ]
