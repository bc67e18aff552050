# Needs the add-on of this folder:
#     corvane --batch --add-on build/ViewTeller.so --macro tell.mcr
$!READDATA "../wake/wake.pvd"
$!VIEW AXIS = +X
$!VIEW SET Psi = 60 Theta = 240 Alpha = 0
$!EXTCOMMAND "View Teller" "Tell"
