#!/bin/sh
# The libraries' binary shape: liborvdll.so exports exactly the names listed
# in the exports.txt files of the source tree, and no library needs any
# library but the project's own.
src=$1 lib=$2
status=0

want=$(find "$src" -name exports.txt -not -path "*/build/*" -exec cat {} + | grep -v '^#' | grep -v '^$' | sort -u)
have=$(nm -D --defined-only "$lib/liborvdll.so" | awk '{print $3}' | sort -u)
missing=$(printf '%s\n' "$want" | comm -23 - "$(printf '%s\n' "$have" > /tmp/orv_have.$$; echo /tmp/orv_have.$$)")
extra=$(printf '%s\n' "$want" | comm -13 - /tmp/orv_have.$$)
rm -f /tmp/orv_have.$$
if [ -n "$missing" ]; then echo "FAIL: not exported:"; printf '  %s\n' $missing; status=1; fi
if [ -n "$extra" ]; then echo "FAIL: exported but not listed:"; printf '  %s\n' $extra; status=1; fi

for so in "$lib"/*.so; do
  for needed in $(readelf -d "$so" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p'); do
    case "$needed" in
      libkernel32.so|libtessardll.so) ;;
      *) echo "FAIL: $(basename "$so") needs $needed"; status=1 ;;
    esac
  done
done

count=$(printf '%s\n' "$have" | grep -c .)
if [ $status = 0 ]; then echo "1 passed, 0 failed ($count exports)"; else echo "0 passed, 1 failed"; fi
exit $status
