# What a planning host sends to have a plan dumped and its report exported: run by "< session.cmd"
# in the folder of the plan. A command that fails ends the program with status 254.
exitOnCmdError y
readTable plan.tbl
readView plan.view
# The table as it was read, every field of every tuple
> plan.dump
dumptable
> stderr
# The report as the view lays it out, texts in quotes, which ends the program
exportreport quotes plan.sp
