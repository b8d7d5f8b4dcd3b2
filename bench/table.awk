# Joins what was measured (name, value, other value), how much of the machine others used (group, percent) and
# bench/figures. Writes the Markdown table, and to the file `values` the same for machines. Ends with 1 when a
# limit is missed, with 2 when a figure is missing.

function trim(text) { gsub(/^[ \t]+|[ \t]+$/, "", text); return text }

function shown(value, unit) {
    if (unit == "") return sprintf("%.4g", value)
    return sprintf(value >= 100 ? "%.0f %s" : value >= 10 ? "%.1f %s" : "%.2f %s", value, unit)
}

# A limit is "value" or "ratio", a relation and a number.
function words(limit, unit,    part) {
    split(limit, part, " ")
    return (part[2] == "<=" ? "at most " : "at least ") part[3] (part[1] == "value" && unit != "" ? " " unit : "")
}

function meets(limit, name,    part, value) {
    split(limit, part, " ")
    value = part[1] == "ratio" ? ours[name] / beside[name] : ours[name]
    return part[2] == "<=" ? value <= part[3] + 0 : value >= part[3] + 0
}

function row(group, name, figure, other, unit, limit,    measured, compared, ratio, verdict) {
    measured = name in ours
    compared = (name in beside) && beside[name] > 0
    ratio = compared ? sprintf("%.2f", ours[name] / beside[name]) : ""
    if (!measured || (limit ~ /^ratio/ && !compared)) {
        verdict = "not measured"
        missing = 1
    } else if (limit != "-") {
        verdict = meets(limit, name) ? "yes" : "**no**"
        if (verdict != "yes") missed = 1
    }
    if (measured && busy[group] > busyLimit) verdict = verdict " (busy)"
    printf "| %s | %s | %s | %s | %s | %s |\n", figure, measured ? shown(ours[name], unit) : "",
        other == "-" ? "" : (compared ? shown(beside[name], unit) ": " : "") other, ratio,
        limit == "-" ? "" : words(limit, unit), verdict
    gsub(/\*/, "", verdict)
    printf "%s\t%s\t%s\t%s\t%s\t%s\t%s\t%s\n", name, measured ? ours[name] : "", compared ? beside[name] : "",
        ratio, unit, limit, verdict, busy[group] > values
}

BEGIN {
    FS = "\t"
    print "| Figure | This program | Compared with | Ratio | Limit | Met |"
    print "|---|---|---|---|---|---|"
    print "name\tours\tother\tratio\tunit\tlimit\tmet\tpercent_used_by_others" > values
}
FILENAME ~ /measured$/ { ours[$1] = $2; if ($3 != "") beside[$1] = $3; next }
FILENAME ~ /groups$/ { busy[$1] = $2; next }
/^ *(#|$)/ { next }
{
    split($0, field, "|")
    for (i in field) field[i] = trim(field[i])
    # The short form leaves the long films out.
    if (field[1] in busy && !(quick != "" && field[2] ~ /-long$/))
        row(field[1], field[2], field[3], field[4], field[5], field[6])
}
END { exit missing ? 2 : missed ? 1 : 0 }
