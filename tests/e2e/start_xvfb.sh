# Sourced by the scripts that start their own virtual X server.
#
#   start_xvfb LOG [ARGS...]   starts Xvfb with a 1280x1024 screen on a display
#                              it picks itself (so tests started together
#                              never race for one number), exports DISPLAY
#                              and sets xvfb_pid; fails when it does not come
#                              up. ARGS go to Xvfb.
start_xvfb() {
    local log=$1 number_file _
    shift
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp "$@" 3>"$number_file" >"$log" 2>&1 &
    xvfb_pid=$!
    for _ in $(seq 100); do
        [[ -s $number_file ]] && break
        kill -0 "$xvfb_pid" 2>/dev/null || break
        sleep 0.1
    done
    export DISPLAY=":$(head -n 1 "$number_file")"
    rm -f "$number_file"
    [[ $DISPLAY != ":" ]]
}
