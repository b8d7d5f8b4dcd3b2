# Joins bench/figures, what was measured and how the groups went. Writes the Markdown table, and with a file
# name in `values` the same for machines. Ends with 1 when a limit is missed, with 2 when a figure is missing.

function trim(text) { gsub(/^[ \t]+|[ \t]+$/, "", text); return text }

function number(value, unit) {
    if (unit == "") return sprintf("%.4g", value)
    return sprintf(value >= 100 ? "%.0f %s" : value >= 10 ? "%.1f %s" : "%.2f %s", value, unit)
}

function meets(value, relation, limit) { return relation == "<=" ? value <= limit + 0 : value >= limit + 0 }

function row(group, name, figure, other, unit, limit,    part, verdict, ratio, judged, limitText) {
    split(limit, part, " ")
    judged = ours[name]
    if ((name in beside) && beside[name] > 0) {
        judged = ours[name] / beside[name]
        ratio = sprintf("%.2f", judged)
    }
    limitText = limit == "-" ? "" : (part[2] == "<=" ? "at most " : "at least ") \
        (part[1] == "ratio" ? part[3] : part[3] (unit == "" ? "" : " " unit))
    if (!(name in ours)) {
        if (quick && name ~ /-long$/) return
        verdict = "not measured"
        missing = 1
    } else if (limit == "-") {
        verdict = ""
    } else if (meets(judged, part[2], part[3])) {
        verdict = "yes"
    } else {
        verdict = "**no**"
        missed = 1
    }
    if (busy[group] > busyLimit) verdict = verdict " (busy)"
    printf "| %s | %s | %s | %s | %s | %s |\n", figure, name in ours ? number(ours[name], unit) : "",
        other == "-" ? "" : ((name in beside) ? number(beside[name], unit) ": " : "") other, ratio, limitText, verdict
    gsub(/\*/, "", verdict)
    print name "\t" ours[name] "\t" beside[name] "\t" ratio "\t" unit "\t" limit "\t" verdict "\t" busy[group] > values
}

BEGIN {
    FS = "\t"
    print "| Figure | This program | Compared with | Ratio | Limit | Met |"
    print "|---|---|---|---|---|---|"
    print "name\tours\tother\tratio\tunit\tlimit\tmet\tothers_used_percent" > values
}
FILENAME ~ /measured$/ { ours[$1] = $2; if ($3 != "") beside[$1] = $3; next }
FILENAME ~ /groups$/ { busy[$1] = $2; next }
/^ *(#|$)/ { next }
{
    split($0, field, "|")
    for (i in field) field[i] = trim(field[i])
    if (field[1] in busy) row(field[1], field[2], field[3], field[4], field[5], field[6])
}
END { exit missing ? 2 : missed ? 1 : 0 }
