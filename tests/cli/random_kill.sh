# To be read by the tests that end the program at random moments.

# Sets what round ROUND is to end with: `signal`, the exit `status` that tells it, and the `delay` in
# seconds, up to FACTOR times the microseconds in `whole`.
draw_kill() { # ROUND FACTOR
  case $(($1 % 3)) in
    0) signal=KILL status=137 ;;
    1) signal=INT status=130 ;;
    *) signal=TERM status=143 ;;
  esac
  random=$(od -An -N4 -tu4 /dev/urandom | tr -d ' ')
  delay=$(awk "BEGIN { printf \"%.6f\", $random / 4294967296 * $whole * $2 / 1000000 }")
}
