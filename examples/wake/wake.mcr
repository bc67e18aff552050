# The vortices behind the cylinder: an isosurface of the Q criterion, coloured by the speed of the flow, above the wall.
$!READDATA "wake.pvd"

$!STYLE Contour/Variable = "U"
$!STYLE Contour/AutomaticRange = false
$!STYLE Contour/Minimum = 0
$!STYLE Contour/Maximum = 1.4
$!STYLE Contour/ColorMap = "CoolWarm"

$!STYLE IsoSurface/1/Show = true
$!STYLE IsoSurface/1/Variable = "Q"
$!STYLE IsoSurface/1/Value = 0.25

# The wall, in one colour.
$!STYLE Slice/1/Show = true
$!STYLE Slice/1/Axis = 3
$!STYLE Slice/1/Position = 0.01
$!STYLE Slice/1/UseContour = false
$!STYLE Slice/1/Color/Red = 0.82
$!STYLE Slice/1/Color/Green = 0.83
$!STYLE Slice/1/Color/Blue = 0.85

$!STYLE Surface/2/Show = true
$!STYLE Annotations/ShowTime = true
