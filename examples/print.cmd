# What a planning host sends to have a plan printed: run by "< print.cmd" in the folder of the plan.
# A command that fails ends the program with status 254.
exitOnCmdError y
readTable plan.tbl
readView plan.view
# By the view's print options, to a command in place of the printer. This ends the program
printreport "cp %s plan.ps"
