# One table of the RESULT lines of the benchmarks' programs (bench/verdict.h). Fails when a ratio is more
# than it may be: its limit or, where "short" is set, twice what bench/usual_ratios has. Of several
# short measurements of one work the smallest ratio counts.

BEGIN {
    while ((getline line < "bench/usual_ratios") > 0) {
        split(line, field, "\t")
        usual[field[1]] = field[2]
    }
}

$1 != "RESULT" { next }

!($2 in ratio) { work[++count] = $2 }

!($2 in ratio) || (short && $3 < ratio[$2]) {
    ratio[$2] = $3
    verdict[$2] = $5
    if (short) verdict[$2] = !($2 in usual) ? "NOT KNOWN" : $3 <= 2 * usual[$2] ? "ok" : "TWICE THE USUAL"
    limit[$2] = short ? 2 * usual[$2] : $4
}

END {
    printf "%-40s %8s %8s %8s  %s\n", "work", "ratio", "usual", "limit", "verdict"
    for (i = 1; i <= count; ++i) {
        name = work[i]
        printf "%-40s %8.2f %8s %8.2f  %s\n", name, ratio[name], usual[name], limit[name], verdict[name]
        if (verdict[name] != "ok") failed = 1
    }
    exit failed
}
