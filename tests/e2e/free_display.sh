# Sourced by the scripts that start their own virtual X server.
#
#   free_display FIRST LAST   prints ":n" for the first display number in
#                             FIRST..LAST with neither a socket nor a lock
#                             file, or fails when all are taken.
free_display() {
    local n
    for n in $(seq "$1" "$2"); do
        if [[ ! -e /tmp/.X11-unix/X$n && ! -e /tmp/.X$n-lock ]]; then
            echo ":$n"
            return 0
        fi
    done
    return 1
}
