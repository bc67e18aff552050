# A film of its own: streamtraces through the wake, with dashes that travel, while time runs; fading in and out.
#     corvane --batch --macro traces.mcr --set OUTPUT=traces.mp4
$!SET OUTPUT = "traces.mp4"
$!READDATA "wake.pvd"

$!STYLE Contour/Variable = "U"
$!STYLE Contour/AutomaticRange = false
$!STYLE Contour/Minimum = 0
$!STYLE Contour/Maximum = 1.4
$!STYLE Slice/1/Show = false

# Twelve traces from a line upstream of the body.
$!STYLE Streamtraces/Variable = "U"
$!STYLE Streamtraces/SeedKind = 1
$!STYLE Streamtraces/SeedStart/X = -2.5
$!STYLE Streamtraces/SeedStart/Y = 0.1
$!STYLE Streamtraces/SeedStart/Z = 0.2
$!STYLE Streamtraces/SeedEnd/X = -2.5
$!STYLE Streamtraces/SeedEnd/Y = 0.1
$!STYLE Streamtraces/SeedEnd/Z = 4.2
$!STYLE Streamtraces/SeedCount = 12
$!STYLE Streamtraces/Direction = 3
$!STYLE Streamtraces/Tubes = true
$!STYLE Streamtraces/Radius = 0.06
$!STYLE Streamtraces/Show = true
$!STYLE StreamAttributes/StreamTiming/DeltaTime = 1.5
$!STYLE StreamAttributes/StreamTiming/ShowMarkers = true

$!EXPORTSETUP ExportFormat = MPEG4
$!EXPORTSETUP ExportRegion = CURRENTFRAME
$!EXPORTSETUP ImageWidth = 1280
$!EXPORTSETUP ExportFName = "${OUTPUT}"
$!EXTCOMMAND "Key Frame Animation" "OpenSettingsFile FileName=\"${MACRO_FOLDER}/traces.keyframe\""
$!EXTCOMMAND "Key Frame Animation" "Animate AnimationDestination=ToFile"
