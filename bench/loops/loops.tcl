# The mxbench workloads in Tcl 8.6, each in a proc; prints "NAME ns-per-turn".
# Usage: tclsh8.6 loops.tcl [N [WORKLOAD]]
set n [expr {[llength $argv] ? [lindex $argv 0] : 1000000}]
set only [expr {[llength $argv] > 1 ? [lindex $argv 1] : ""}]
proc int {n} { set i 0; set s 0; while {$i < $n} { set s [expr {$s + $i}]; incr i } }
proc float {n} { set i 0.0; set s 0.0; while {$i < $n} { set s [expr {$s + $i}]; set i [expr {$i + 1.0}] } }
proc text {n} {
  set i 0; set t ""
  while {$i < $n} { append t $i; if {[string length $t] >= 1000} { set t "" }; incr i }
}
# abs() is a math function command, standing in for a host function.
proc call {n} { set i 0; set s 0; while {$i < $n} { set s [expr {$s + abs($i)}]; incr i } }
proc builtin {n} {
  set i 0; set s 0; set t "hello world"
  while {$i < $n} { set s [expr {$s + [string length $t]}]; incr i }
}
foreach name {int float text call builtin} {
  if {$only ne "" && $only ne $name} continue
  set us [lindex [time [list $name $n] 1] 0]
  puts [format "%s %.1f" $name [expr {$us * 1000.0 / $n}]]
}
