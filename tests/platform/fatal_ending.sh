#!/bin/bash
# Runs fatal_ending on a virtual X server: it must end with status 1 and, in
# the sanitizer build, without a report. A leak report alone does not change
# a status that is already 1, so the output is searched for one.
#
#   fatal_ending.sh <fatal_ending program>
here=$(dirname "$0")
output=$(bash "$here/under_xvfb.sh" "$1" 2>&1)
status=$?
echo "$output"
[[ $status -eq 77 ]] && exit 77
if grep -q "Sanitizer" <<<"$output"; then
    echo "FAIL: the ending left a sanitizer report"
    exit 1
fi
if [[ $status -ne 1 ]]; then
    echo "FAIL: ended with status $status instead of 1"
    exit 1
fi
