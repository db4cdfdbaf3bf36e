#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks it as a desktop
# would see it: the files are where the menu, the icon theme, software
# centres and man look for them, the real validators accept them, and the
# manual page documents exactly the commands and options of --help.
#   check-install.sh BUILD_DIR SOURCE_DIR HAS_DESKTOP(0|1)
set -uo pipefail
build=$1 source=$2 has_desktop=$3

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
prefix="$tmp/any prefix"   # a space, as a user's own prefix may have
failures=0
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }

if ! cmake --install "$build" --prefix "$prefix" >"$tmp/install.log" 2>&1; then
    cat "$tmp/install.log" >&2
    echo "FAIL: cmake --install" >&2
    exit 1
fi

# --- layout ----------------------------------------------------------------------
sizes=(16 22 24 32 48 64 128 256)
expected=(bin/sulkbox share/applications/sulkbox.desktop share/metainfo/sulkbox.metainfo.xml
          share/man/man1/sulkbox.1.gz share/icons/hicolor/scalable/apps/sulkbox.svg)
for s in "${sizes[@]}"; do expected+=("share/icons/hicolor/${s}x${s}/apps/sulkbox.png"); done
((has_desktop)) && expected+=(libexec/sulkbox/sulkbox-desktop libexec/sulkbox/libsulkbox_quick.so)
for f in "${expected[@]}"; do
    [[ -f "$prefix/$f" ]] || fail "not installed: $f"
done
for f in bin/sulkbox libexec/sulkbox/sulkbox-desktop; do
    [[ -e "$prefix/$f" && ! -x "$prefix/$f" ]] && fail "not executable: $f"
done

# Nothing may land outside the prefix (an absolute destination would).
while IFS= read -r f; do
    [[ "$f" == "$prefix"/* ]] || fail "installed outside the prefix: $f"
done <"$build/install_manifest.txt"

# Each PNG is a PNG of the size its folder names.
png_size() { od -An -tu1 -j16 -N8 "$1" | awk '{ printf "%dx%d", $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8 }'; }
for s in "${sizes[@]}"; do
    f="$prefix/share/icons/hicolor/${s}x${s}/apps/sulkbox.png"
    [[ -f "$f" ]] || continue
    [[ "$(head -c 8 "$f" | od -An -tx1 | tr -d ' \n')" == 89504e470d0a1a0a ]] || { fail "not a PNG: $f"; continue; }
    [[ "$(png_size "$f")" == "${s}x${s}" ]] || fail "${s}x${s} icon is $(png_size "$f")"
done

# --- desktop entry -----------------------------------------------------------------
entry="$prefix/share/applications/sulkbox.desktop"
if [[ -f "$entry" ]]; then
    # Hints count too: a clean entry gets no remarks at all.
    if ! desktop-file-validate "$entry" >"$tmp/dfv.log" 2>&1 || [[ -s "$tmp/dfv.log" ]]; then
        cat "$tmp/dfv.log" >&2
        fail "desktop-file-validate"
    fi
    key() { sed -n "s/^$1=//p" "$entry"; }
    exec_prog=$(key Exec | awk '{ print $1 }')
    [[ -x "$prefix/bin/$exec_prog" ]] || fail "Exec=$exec_prog is not an installed program"
    [[ "$(key TryExec)" == "$exec_prog" ]] || fail "TryExec differs from Exec"
    icon=$(key Icon)
    [[ -f "$prefix/share/icons/hicolor/scalable/apps/$icon.svg" ]] || fail "Icon=$icon is not in the hicolor theme"
fi

# Every interface language the program has is in the menu entry and the metainfo.
meta="$prefix/share/metainfo/sulkbox.metainfo.xml"
for ts in "$source"/src/l10n/translations/sulkbox_*.ts; do
    lang=$(basename "$ts" .ts); lang=${lang#sulkbox_}
    case $lang in zhHans) lang=zh_CN ;; zhHant) lang=zh_TW ;; esac
    for k in GenericName Comment Keywords; do
        grep -q "^$k\[$lang\]=." "$entry" || fail "desktop entry: no $k[$lang]"
    done
    grep -q "<lang>$lang</lang>" "$meta" || fail "metainfo: $lang not among the languages"
    for tag in summary p li caption; do
        grep -q "<$tag xml:lang=\"$lang\">" "$meta" || fail "metainfo: no <$tag> in $lang"
    done
done

# --- AppStream metainfo ------------------------------------------------------------
if [[ -f "$meta" ]]; then
    appstreamcli validate --no-net --explain "$meta" || fail "appstreamcli validate"
    # The tree check also links the launchable to the installed desktop entry.
    # Its one complaint we accept: the file keeps the short name the
    # desktop entry has, while the component id is reverse-DNS.
    appstreamcli validate-tree --no-net "$prefix" >"$tmp/tree.log" 2>&1
    if grep -E '^ +[EW]: ' "$tmp/tree.log" | grep -vq 'metainfo-filename-cid-mismatch'; then
        cat "$tmp/tree.log" >&2
        fail "appstreamcli validate-tree"
    fi

    version=$("$prefix/bin/sulkbox" --version | awk '{ print $2 }')
    newest=$(grep -o '<release version="[^"]*"' "$meta" | head -1 | cut -d'"' -f2)
    [[ "$newest" == "$version" ]] || fail "metainfo: newest release is '$newest', the program is $version"

    # Screenshots are files of this repository; once it has any pictures
    # under docs/, the ones named must be among them.
    if [[ -n "$(find "$source/docs" -name '*.png' -print -quit 2>/dev/null)" ]]; then
        grep -o '<image[^>]*>[^<]*' "$meta" | sed 's/.*>//; s#^https://raw.githubusercontent.com/[^/]*/[^/]*/[^/]*/##' |
            while IFS= read -r shot; do
                [[ -f "$source/$shot" ]] || echo "$shot"
            done >"$tmp/missing-shots"
        [[ -s "$tmp/missing-shots" ]] && fail "metainfo names screenshots the tree lacks: $(tr '\n' ' ' <"$tmp/missing-shots")"
    else
        echo "note: no screenshots under docs/ yet; their names in the metainfo are unchecked"
    fi
fi

# --- manual page against --help -------------------------------------------------------
# Both sides as lines "name" or "name ARG" (the option or command takes a value).
page="$prefix/share/man/man1/sulkbox.1.gz"
help=$("$prefix/bin/sulkbox" --help) || fail "sulkbox --help"

help_commands() {
    awk '/^Commands:/ { on = 1; next } on && /^$/ { exit }
         on && /^  [a-z]/ { print ($2 ~ /^[A-Z]+$/) ? $1 " ARG" : $1 }'
}
help_options() {
    awk '/^Options:/ { on = 1; next } on && /^$/ { exit }
         on && /^  -/ { sub(/^  /, ""); split($0, col, /  +/); opt = col[1]
                        arg = (opt ~ /</) ? " ARG" : ""; gsub(/ <[^>]*>/, "", opt)
                        n = split(opt, names, /, /); for (i = 1; i <= n; i++) print names[i] arg }'
}
# In the troff source: the tag line after each .TP in the section.
man_tags() {
    zcat "$page" | awk -v section="$1" '
        /^\.SH/ { on = ($2 == section); next }
        on && /^\.TP/ { tag = 1; next }
        on && tag { tag = 0; sub(/^\.[A-Z]+ /, ""); gsub(/\\/, ""); gsub(/"/, " "); gsub(/,/, " ")
                    n = split($0, w, / +/); arg = ""; k = 0
                    for (i = 1; i <= n; i++) if (w[i] ~ /^-/ || (section == "COMMANDS" && i == 1)) names[++k] = w[i]; else if (w[i] != "") arg = " ARG"
                    for (i = 1; i <= k; i++) print names[i] arg; delete names }'
}
compare() { # what, from help, from man
    local only_help only_man
    only_help=$(comm -23 <(sort <<<"$2") <(sort <<<"$3") | tr '\n' ' ')
    only_man=$(comm -13 <(sort <<<"$2") <(sort <<<"$3") | tr '\n' ' ')
    [[ -z "$only_help" ]] || fail "$1 in --help but not in the manual page: $only_help"
    [[ -z "$only_man" ]] || fail "$1 in the manual page but not in --help: $only_man"
    [[ -n "$2" ]] || fail "no $1 found in --help"
}
if [[ -f "$page" ]]; then
    compare commands "$(help_commands <<<"$help")" "$(man_tags COMMANDS)"
    compare options "$(help_options <<<"$help")" "$(man_tags OPTIONS)"
    if command -v man >/dev/null; then
        man --warnings -l "$page" 2>"$tmp/man.err" >/dev/null
        [[ -s "$tmp/man.err" ]] && fail "man: $(cat "$tmp/man.err")"
    fi
fi

# --- the launcher finds the installed desktop face -------------------------------------
# A stand-in for the desktop face reports how it was started.
if ((has_desktop)); then
    stub="$prefix/libexec/sulkbox/sulkbox-desktop"
    printf '#!/bin/sh\nprintf "%%s\\n%%s\\n" "$0" "$SULKBOX_LAUNCHER" > "%s"\n' "$tmp/started" >"$stub"
    chmod +x "$stub"
    mkdir -p "$tmp/elsewhere"
    ln -s "$prefix/bin/sulkbox" "$tmp/elsewhere/sulkbox"
    for launcher in "$prefix/bin/sulkbox" "$tmp/elsewhere/sulkbox"; do
        rm -f "$tmp/started"
        (cd / && env -u SULKBOX_LAUNCHER timeout 20 "$launcher" </dev/null >/dev/null 2>&1)
        if [[ ! -f "$tmp/started" ]]; then
            fail "$launcher did not start libexec/sulkbox/sulkbox-desktop"
            continue
        fi
        started_as=$(sed -n 2p "$tmp/started")
        [[ "$started_as" == /* && "$(realpath "$started_as")" == "$(realpath "$prefix/bin/sulkbox")" ]] ||
            fail "SULKBOX_LAUNCHER is '$started_as', not the installed sulkbox"
    done
fi

if ((failures)); then
    echo "$failures check(s) failed" >&2
    exit 1
fi
echo "installed layout OK under $prefix"
