# The same three loops as mxbench, in Tcl 8.6; prints "NAME ns-per-turn".
set n [expr {[llength $argv] ? [lindex $argv 0] : 1000000}]
proc intloop {n} { set i 0; set s 0; while {$i < $n} { set s [expr {$s + $i}]; incr i } }
proc floatloop {n} { set i 0.0; set s 0.0; while {$i < $n} { set s [expr {$s + $i}]; set i [expr {$i + 1.0}] } }
proc callloop {n} { set i 0; set s 0; while {$i < $n} { set s [expr {$s + [string length $i]}]; incr i } }
foreach name {int float call} {
  set us [lindex [time [list ${name}loop $n] 1] 0]
  puts [format "%s %.1f" $name [expr {$us * 1000.0 / $n}]]
}
