# perl makes writing to the pipe fail instead of wait while it is full.
yes 1/3 | head -n 100000 |
  perl -MFcntl -e 'fcntl(STDOUT, F_SETFL, fcntl(STDOUT, F_GETFL, 0) | O_NONBLOCK); exec @ARGV' kavcalc --raw |
  { sleep 0.3; uniq -c | tr -s ' '; }
