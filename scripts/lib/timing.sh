# shellcheck shell=bash
# What is being done, how long that usually takes, and how long it took. Sourced by system.sh, not run.

run_started=$SECONDS
stage_key=
stage_started=
at_exit_commands=()

# in_words SECONDS
in_words() {
    if [ "$1" -lt 100 ]; then printf '%d s' "$1"; else printf '%d min %02d s' $(($1 / 60)) $(($1 % 60)); fi
}

# usual_time KEY: what the last run of this checkout took, or, before there was one, a machine of two cores.
usual_time() {
    local known
    known=$(awk -v key="$1" '$1 == key { print $2; exit }' build/stage_times scripts/usual_times 2>/dev/null)
    [ -n "$known" ] && printf ' (usually %s)' "$(in_words "$known")"
}

end_stage() {
    [ -n "$stage_key" ] || return 0
    mkdir -p build
    {
        printf '%s %d\n' "$stage_key" $((SECONDS - stage_started))
        [ ! -e build/stage_times ] || awk -v key="$stage_key" '$1 != key' build/stage_times
    } >build/stage_times.new && mv build/stage_times.new build/stage_times
    stage_key=
}

# stage KEY WORDS...: says what begins now. How long it took is known when the next one begins.
stage() {
    end_stage
    stage_key=$1 stage_started=$SECONDS
    shift
    say "$*$(usual_time "$stage_key")"
}

# at_exit COMMAND: runs it when the script ends, the latest first.
at_exit() { at_exit_commands=("$1" "${at_exit_commands[@]}"); }

finish_run() {
    local status=$? command
    for command in "${at_exit_commands[@]}"; do $command; done
    if [ $status = 0 ]; then
        end_stage
        say "${0##*/}: done in $(in_words $((SECONDS - run_started)))"
    else
        say "${0##*/}: failed after $(in_words $((SECONDS - run_started)))"
    fi
    exit $status
}
trap finish_run EXIT
