#!/bin/sh
# The libraries' binary shape: liborvdll.so exports exactly the names listed
# in the exports.txt files of the source tree, libtessardll.so exactly those
# under tessar/, and no library needs any library but the project's own.
src=$1 lib=$2
status=0
summary=""

# check LIBRARY LISTS...: the library exports exactly the union of the lists.
check() {
  so=$1; shift
  want=$(cat "$@" /dev/null | grep -v '^#' | grep -v '^$' | sort -u)
  have=$(nm -D --defined-only "$lib/$so" | awk '{print $3}' | sort -u)
  printf '%s\n' "$have" > /tmp/orv_have.$$
  missing=$(printf '%s\n' "$want" | comm -23 - /tmp/orv_have.$$)
  extra=$(printf '%s\n' "$want" | comm -13 - /tmp/orv_have.$$)
  rm -f /tmp/orv_have.$$
  if [ -n "$missing" ]; then echo "FAIL: $so does not export:"; printf '  %s\n' $missing; status=1; fi
  if [ -n "$extra" ]; then echo "FAIL: $so exports but does not list:"; printf '  %s\n' $extra; status=1; fi
  summary="$summary $so $(printf '%s\n' "$have" | grep -c .)"
}

check liborvdll.so $(find "$src" -name exports.txt -not -path "*/build/*" -not -path "$src/tessar/*")
tessar_lists=$(find "$src/tessar" -name exports.txt 2>/dev/null)
if [ -e "$lib/libtessardll.so" ] || [ -n "$tessar_lists" ]; then
  check libtessardll.so $tessar_lists
fi

for so in "$lib"/*.so; do
  for needed in $(readelf -d "$so" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p'); do
    case "$needed" in
      libkernel32.so|libtessardll.so) ;;
      *) echo "FAIL: $(basename "$so") needs $needed"; status=1 ;;
    esac
  done
done

if [ $status = 0 ]; then echo "1 passed, 0 failed (exports:$summary)"; else echo "0 passed, 1 failed"; fi
exit $status
