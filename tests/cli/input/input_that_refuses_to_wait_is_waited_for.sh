# perl makes reading the pipe fail instead of wait while it is empty.
{ sleep 0.2; echo 1+1; sleep 0.2; echo 2+2; } |
  perl -MFcntl -e 'fcntl(STDIN, F_SETFL, fcntl(STDIN, F_GETFL, 0) | O_NONBLOCK); exec @ARGV' kavcalc
