# The shipped reference files: their format, and figures that must stand in them.
set(REFDATA_CHECK ${PROJECT_SOURCE_DIR}/tools/check_refdata.py)
set(REFDATA_DIR ${PROJECT_SOURCE_DIR}/data/VLSupport)

add_test(NAME ReferenceData.Physics COMMAND python3 ${REFDATA_CHECK} ${REFDATA_DIR}/physicaldata.txt --quiet
  --codata ${CMAKE_CURRENT_SOURCE_DIR}/data/codata2022.txt --codata-map ${CMAKE_CURRENT_SOURCE_DIR}/data/codata2022_map.txt
  "--expect=electron mass=>9.1093837139"
  "--expect=speed light=>299792458"
  "--expect=Planck constant=>6.62607015"
  "--expect=avogadro=>6.02214076"
  "--expect=boltzmann=>1.380649"
  "--expect=proton mass=>1.67262192"
  "--expect=gravitation=>6.674"
  "--expect=element iron=>55.845"
  "--expect=element oganesson=>118"
  # Element keys are two words, so the pop-up row is the name and two blanks; with shift
  # held the row alone finds the element and the substance (cast iron) too.
  "--adds=element=>iron  "
  "--expect=iron  =>Cast iron"
  "--expect=iron  =>55.845(2)"
  # A symbol or an atomic number still finds its element.
  "--expect=26=>Fe: iron"
  "--expect=Fe=>Fe: iron"
  "--expect=element 26=>iron"
  "--expect=atomic number 92=>uranium"
  "--expect=aluminum=>26.9815384"
  "--expect=element gadolinium=>157.249(2)"
  "--expect=element lutetium=>174.96669(5)"
  "--expect=element zirconium=>91.222(3)"
  "--expect=element technetium=>[97]"
  "--expect=Co-60=>5.27"
  "--expect=coal=>"
  "--expect=cast iron=>7.")
add_test(NAME ReferenceData.Astronomy COMMAND python3 ${REFDATA_CHECK} ${REFDATA_DIR}/AstrDataXML.txt --quiet
  "--expect=NEPTUNE MOONS=>Triton"
  "--expect=Galaxy Andromeda=>M31"
  "--expect=moon mass=>7.34"
  "--expect=earth mass=>5.97"
  "--expect=sun mass=>1.9885"
  "--expect=star sirius=>-1.46"
  # Star keys are two words (three for a two-word name), as element keys are; the Bayer
  # designation lives in a STAR_DESIGNATION entry that a shifted 'sirius  ' finds too.
  "--adds=star=>sirius  "
  "--expect=sirius  =>Alpha Canis Majoris is Sirius"
  "--expect=star alpha centauri=>Proxima"
  "--adds=star=>rigil kentaurus "
  # Every planet answers for its moons, the inner ones too.
  "--expect=mercury moons=>none"
  "--expect=venus moons=>none"
  "--expect=earth moons=>the Moon"
  "--expect=mars moons=>Phobos"
  "--expect=jupiter moons=>Ganymede"
  "--expect=saturn moons=>Titan"
  "--expect=uranus moons=>Titania"
  "--expect=constellation orion=>"
  "--expect=comet halley=>"
  "--expect=asteroid ceres=>")
add_test(NAME ReferenceData.Math COMMAND python3 ${REFDATA_CHECK} ${REFDATA_DIR}/Mathformulas.txt --quiet
  "--expect=volume sphere=>4/3"
  "--expect=area circle=>PI*r^2"
  "--expect=trigonometry=>sin"
  "--expect=Finance compound=>"
  "--expect=probability=>"
  "--expect=kinematics=>"
  "--expect=perimeter=>"
  "--expect=vectors=>"
  "--expect=algebra quadratic=>")
