# The public headers without what is no affair of their readers: what is private, the doors to private data, and overrides
# that say no more than Qt does of the base class. Lines keep their numbers.

# A declaration is held back until its end tells what it is.
function hold() {
    held = held $0 "\n"
    if ($0 !~ /[;{}]$/)
        return
    if (held ~ /d_zel_func_/ || (!isDocumented && held ~ /( override|OVERRIDE_ON_QT[56]);\n$/))
        gsub(/[^\n]/, "", held)
    printf "%s", held
    held = ""
    isDocumented = 0
}

/^(private|public|protected|Q_SIGNALS|};)/ { isPrivate = /^private/ }

isPrivate {
    print ""
    next
}

/^    [A-Za-z~].*\(/ || held != "" {
    hold()
    next
}

{ print }

/\*\/$/ { isDocumented = 1 }
/^$/ { isDocumented = 0 }

END { printf "%s", held }
