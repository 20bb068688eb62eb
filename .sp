"Default View Title"
"Qty  (Aggregated)"
"(Item  by  Period)"

Item	P1	P2	

"A"	5.0000000000	
"B"		4.0000000000
