#!/usr/bin/env bash
# Rebuilds fuzz/corpus/<harness>/ from the test fixtures: real /proc and
# /sys files, in the multi-file form of fuzz/FuzzTree.h where a harness
# reads a tree. Run it after adding fixtures; the corpus is kept in the tree.
set -euo pipefail
cd "$(dirname "$0")/.."
fixtures=tests/fixtures
out=fuzz/corpus

# emit ROOT PATTERN...: the files and links under ROOT whose relative paths
# match one of the patterns (bash globs, ** for any depth), as headers and
# contents.
emit() {
    local root=$1
    shift
    (cd "$root" && find . \( -type f -o -type l \) | sed 's|^\./||' | LC_ALL=C sort) | while IFS= read -r rel; do
        local match=
        for pattern in "$@"; do
            # shellcheck disable=SC2053
            [[ $rel == $pattern ]] && match=1 && break
        done
        [[ -n $match ]] || continue
        if [[ -L $root/$rel ]]; then
            printf '==> %s -> %s <==\n' "$rel" "$(readlink "$root/$rel")"
        else
            printf '==> %s <==\n' "$rel"
            cat "$root/$rel"
            # A file must end its last line, or the next header would join it.
            if [[ -s $root/$rel && $(tail -c1 "$root/$rel" | od -An -tx1 | tr -d ' ') != 0a ]]; then
                printf '\n'
            fi
        fi
    done
}

# tree HARNESS NAME ROOT [LATER] -- PATTERN...: one seed from ROOT, with
# the files of LATER (if it exists) as the second snapshot.
tree() {
    local harness=$1 name=$2 root=$3 later=$4
    shift 5
    mkdir -p "$out/$harness"
    {
        emit "$root" "$@"
        if [[ -n $later && -d $later ]]; then
            printf '==> @next <==\n'
            emit "$later" "$@"
        fi
    } > "$out/$harness/$name"
    if [[ ! -s $out/$harness/$name ]]; then
        rm "$out/$harness/$name"
    fi
}

rm -rf "$out"
for dir in "$fixtures"/*/; do
    f=$(basename "$dir")
    tree cpu "$f" "$dir" "$dir/later" -- 'proc/stat' 'proc/cpuinfo' 'sys/firmware/devicetree/base/model' 'proc/device-tree/model'
    tree memory "$f" "$dir" "$dir/later" -- 'proc/meminfo' 'sys/block/zram*/mm_stat'
    tree network "$f" "$dir" "$dir/later" -- 'proc/net/dev' 'proc/net/route' 'sys/class/net/*'
    tree mountinfo "$f" "$dir" "$dir/later" -- 'proc/self/mountinfo' 'proc/filesystems' 'proc/sys/kernel/hostname'
    tree diskstats "$f" "$dir" "$dir/later" -- 'proc/diskstats' 'sys/block/*'
    tree battery "$f" "$dir" "" -- 'sys/class/power_supply/*'
    tree sensors "$f" "$dir" "" -- 'sys/class/hwmon/*' 'sys/class/thermal/*' 'sys/class/power_supply/*' \
        'sys/devices/platform/applesmc.768/*' 'sys/class/drm/*'
    tree power "$f" "$dir" "" -- 'sys/class/powercap/*' 'sys/class/hwmon/*'
done
tree diskstats laptop-backwards "$fixtures/laptop" "$fixtures/laptop/backwards" -- 'proc/diskstats' 'sys/block/*'
tree processes t0-t1 "$fixtures/procs/t0" "$fixtures/procs/t1" -- 'proc/*'
tree processes t1-t2 "$fixtures/procs/t1" "$fixtures/procs/t2" -- 'proc/*'

# Single files: every small distinct file of the fixtures, for the number
# and text readers.
mkdir -p "$out/sysfs"
find "$fixtures" -type f -size -2k -print0 | while IFS= read -r -d '' file; do
    cp "$file" "$out/sysfs/$(sha1sum "$file" | cut -c1-16)"
done
for text in '18446744073709551615' '-9223372036854775808' '9223372036854775807' '+42' ' 7 ' \
    'Core 0\033[31m'; do
    printf '%b\n' "$text" > "$out/sysfs/edge-$(printf '%s' "$text" | sha1sum | cut -c1-8)"
done

# The SMC decoder: each captured key's type (four bytes) and value.
mkdir -p "$out/smc_decode"
for key in "$fixtures"/*/sys/devices/platform/applesmc.768/keys/*/; do
    [[ -f $key/type && -f $key/data ]] || continue
    name=$(tr -d '\n' < "$key/name" | tr -c 'A-Za-z0-9' '_')
    { printf '%-4.4s' "$(tr -d '\n' < "$key/type")"; cat "$key/data"; } > "$out/smc_decode/$name"
done

# Settings files: what the preferences window writes, and a hand-edited one.
mkdir -p "$out/settings"
cat > "$out/settings/written" <<'INI'
[General]
refreshInterval=2
appLanguage=ja
useFahrenheit=true
moodEnabled=true
petName=Pixel
savageMode=false
launchAtLogin=false
showCPU=true
showMemory=true
showNetwork=false
showDisk=true
showSensors=true
showProcesses=true
migratedFromLegacyBundleID=true
INI
cat > "$out/settings/hand-edited" <<'INI'
; my settings
[General]
refreshInterval = 0.25
petName="Dr. \"Fuzz\" \x1b[31m"
showDisk=@Variant(\0\0\0\x7f\0\0\0\x6QColor\0)
savageMode=yes
[Other]
x=1
INI
echo "corpus: $(find "$out" -type f | wc -l) files, $(du -sh "$out" | cut -f1)"
