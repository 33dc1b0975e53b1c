# C++ of Markdown files as one source: what they include, then each snippet as a function of a window of its own. A
# snippet that has a main() is a program, and gets a namespace instead.

function wrapped(snippet) {
    if (snippet ~ /int main\(/)
        return "namespace snippet" ++count "\n{\n" snippet "}\n"
    return "struct Snippet" ++count " : QWidget\n{\nvoid run()\n{\n" snippet "}\n};\n"
}

function place(line) { return "#line " line " \"" FILENAME "\"\n" }

BEGIN { print "#include <QtWidgets>" }

/^```cpp$/ {
    isInside = 1
    snippet = place(FNR + 1)
    next
}

/^```$/ && isInside {
    isInside = 0
    code = code wrapped(snippet)
}

isInside && /^#include/ {
    printf "%s%s\n", place(FNR), $0
    $0 = ""
}

isInside { snippet = snippet $0 "\n" }

END {
    printf "%s", code
    if (count == 0)
        exit 1
}
