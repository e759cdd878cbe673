#pragma once

#include <QString>
#include <vector>

namespace morvane::test {

/// A real report and everything that it decodes to, one "Property=value" a line.
struct CuratedReport {
    const char* report;
    const char* fields;
};

inline const std::vector<CuratedReport> curatedReports = {
    {"KSEA 141453Z 00000KT M1/4SM R16C/0600V0700FT FG OVC001 08/08 A2992 RMK AO2 SLP137 T00830078 55003",
     R"(MetarICAO=KSEA
WindSpeedMeasurement=kts
WindDirection=Calm
WindSpeed=0
MetarDate=14
MetarTime=1453
MetarVisiblity=M1/4 Mile(s)
MetarVisibilityFormat=mph
MetarObscuration=Fog
MetarCloud=Overcast
MetarMaxCloud=5
MetarTemp=08
MetarDewpoint=08
MetarPressure=29.92 Inches of Mercury)"},
    {"EGLL 141520Z 17005KT 080V220 CAVOK 18/11 Q1018",
     R"(MetarICAO=EGLL
WindSpeedMeasurement=kts
WindDirection=170 degrees
WindSpeed=005
WindVarying=True
WindVaryingFrom=080
WindVaryingTo=220
MetarDate=14
MetarTime=1520
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=cavok
MetarCloud=No significant cloud below 5000 feet (CAVOK)
MetarMaxCloud=1
MetarTemp=18
MetarDewpoint=11
MetarPressure=1018 Millibars)"},
    {"EHAM 230155Z VRB01KT 2700 -DZ BR FEW005 BKN007 BKN012 07/07 Q1022 NOSIG",
     R"(MetarICAO=EHAM
WindSpeedMeasurement=kts
WindDirection=Variable
WindSpeed=01
MetarDate=23
MetarTime=0155
MetarVisiblity=2700m
MetarVisibilityFormat=km
MetarWeather=Drizzle
MetarWeatherStrength=Light 
MetarObscuration=Mist
MetarCloud=Mostly Cloudy
MetarMaxCloud=4
MetarTemp=07
MetarDewpoint=07
MetarPressure=1022 Millibars)"},
    {"KCTB 230156Z AUTO 24033G44KT 10SM CLR 08/M02 A2963 RMK AO2 PK WND 24052/0106 SLP043 T00781017 TSNO",
     R"(MetarICAO=KCTB
WindSpeedMeasurement=kts
WindDirection=240 degrees
WindSpeed=033
WindGusting=True
WindGust=44
MetarDate=23
MetarTime=0156
MetarVisiblity=10 Mile(s)
MetarVisibilityFormat=mph
MetarCloud=Sky Clear
MetarMaxCloud=1
MetarTemp=08
MetarDewpoint=Minus 02
MetarPressure=29.63 Inches of Mercury)"},
    {"KEYE 112353Z AUTO 16003KT 1 1/4SM BR OVC002 09/09 A2980 RMK AO2 SLP095 T00940089 10094 20072 53003",
     R"(MetarICAO=KEYE
WindSpeedMeasurement=kts
WindDirection=160 degrees
WindSpeed=003
MetarDate=11
MetarTime=2353
MetarVisiblity=1 1/4 Mile(s)
MetarVisibilityFormat=mph
MetarObscuration=Mist
MetarCloud=Overcast
MetarMaxCloud=5
MetarTemp=09
MetarDewpoint=09
MetarPressure=29.80 Inches of Mercury)"},
    {"EGLL 230150Z AUTO 29003KT 0400 R27R/0450 FG FEW045/// 05/04 Q1025",
     R"(MetarICAO=EGLL
WindSpeedMeasurement=kts
WindDirection=290 degrees
WindSpeed=003
MetarDate=23
MetarTime=0150
MetarVisiblity=0400m
MetarVisibilityFormat=km
MetarObscuration=Fog
MetarCloud=Mostly Clear
MetarMaxCloud=2
MetarTemp=05
MetarDewpoint=04
MetarPressure=1025 Millibars)"},
    {"UHWW 230230Z 33008MPS 0700 R25L/0750N SHSN BLSN VV003 M08/M09 Q1015 TEMPO 0300 SHSN BLSN VV002 RMK "
     "QBB100 MT OBSC QFE760/1013 25490260",
     R"(MetarICAO=UHWW
WindSpeedMeasurement=mps
WindDirection=330 degrees
WindSpeed=008
MetarDate=23
MetarTime=0230
MetarVisiblity=0700m
MetarVisibilityFormat=km
MetarWeather=Blowing and Snow
MetarWeatherStrength=Moderate 
MetarCloud=Sky obscured
MetarMaxCloud=6
MetarTemp=Minus 08
MetarDewpoint=Minus 09
MetarPressure=1015 Millibars)"},
    {"KMSY 230151Z 33007KT 6SM TSRA BR FEW017 BKN025CB OVC035 21/18 A3002 RMK AO2 TSE32B41 VIS W 2 OCNL "
     "LTGIC W-NW TS W-NW MOV NE P0000",
     R"(MetarICAO=KMSY
WindSpeedMeasurement=kts
WindDirection=330 degrees
WindSpeed=007
MetarDate=23
MetarTime=0151
MetarVisiblity=6 Mile(s)
MetarVisibilityFormat=mph
MetarWeather=Thunderstorm and Rain
MetarWeatherStrength=Moderate 
MetarObscuration=Mist
MetarCloud=Overcast: Cumulonimbus observed
MetarMaxCloud=5
MetarTemp=21
MetarDewpoint=18
MetarPressure=30.02 Inches of Mercury)"},
    // "VV///" is the first short group with a slash: wanted, it stands where a temperature is shown.
    {"EDDH 230220Z 15008KT 0700 R23/P2000N R15/1200VP2000N FZFG VV/// M00/M00 Q1024 NOSIG",
     R"(MetarICAO=EDDH
WindSpeedMeasurement=kts
WindDirection=150 degrees
WindSpeed=008
MetarDate=23
MetarTime=0220
MetarVisiblity=0700m
MetarVisibilityFormat=km
MetarObscuration=Freezing Fog
MetarCloud=Sky obscured
MetarMaxCloud=6
MetarTemp=VV
MetarPressure=1024 Millibars)"},
    {"CYVR 230200Z 13017KT 10SM -SHRA SCT011 BKN036 OVC060 06/05 A2956 RMK SC3SC3SC2 SLP009",
     R"(MetarICAO=CYVR
WindSpeedMeasurement=kts
WindDirection=130 degrees
WindSpeed=017
MetarDate=23
MetarTime=0200
MetarVisiblity=10 Mile(s)
MetarVisibilityFormat=mph
MetarWeather=Shower(s) and Rain
MetarWeatherStrength=Light 
MetarCloud=Overcast
MetarMaxCloud=5
MetarTemp=06
MetarDewpoint=05
MetarPressure=29.56 Inches of Mercury)"},
    {"EGPB 291150Z 36012KT 9999 VCSH SCT024 06/02 Q1024",
     R"(MetarICAO=EGPB
WindSpeedMeasurement=kts
WindDirection=360 degrees
WindSpeed=012
MetarDate=29
MetarTime=1150
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=km
MetarWeather=In Vicinity (not at aerodrome), Shower(s)
MetarWeatherStrength=Moderate 
MetarCloud=Partly Cloudy
MetarMaxCloud=3
MetarTemp=06
MetarDewpoint=02
MetarPressure=1024 Millibars)"},
    {"DAMD 041700Z 32012KT 9999 FEW020 FEW023TCU BKN026 08/02 Q////",
     R"(MetarICAO=DAMD
WindSpeedMeasurement=kts
WindDirection=320 degrees
WindSpeed=012
MetarDate=04
MetarTime=1700
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=km
MetarCloud=Mostly Cloudy: Towering Cumulonimbus observed
MetarMaxCloud=4
MetarTemp=08
MetarDewpoint=02
MetarPressure=//// Millibars)"},
    {"ZSJG 290900Z 32008MPS 290V340 2000 R09/1400 +TSRA FEW010 OVC020 FEW020CB 27/27 Q0999 NOSIG",
     R"(MetarICAO=ZSJG
WindSpeedMeasurement=mps
WindDirection=320 degrees
WindSpeed=008
WindVarying=True
WindVaryingFrom=290
WindVaryingTo=340
MetarDate=29
MetarTime=0900
MetarVisiblity=2000m
MetarVisibilityFormat=km
MetarWeather=Thunderstorm and Rain
MetarWeatherStrength=Heavy 
MetarCloud=Overcast: Cumulonimbus observed
MetarMaxCloud=5
MetarTemp=27
MetarDewpoint=27
MetarPressure=0999 Millibars)"},
    {"YPPD 231130Z AUTO 28016KT 9999 // NCD 27/19 Q1007 RF00.0/000.0",
     R"(MetarICAO=YPPD
WindSpeedMeasurement=kts
WindDirection=280 degrees
WindSpeed=016
MetarDate=23
MetarTime=1130
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=km
MetarCloud=No Cloud Data Available
MetarMaxCloud=3
MetarTemp=27
MetarDewpoint=19
MetarPressure=1007 Millibars)"},
    {"SPHY 221900Z /////KT 9999 FEW012 19/08 Q1031 RMK BIRD HAZARD RWY03/21 PP000",
     R"(MetarICAO=SPHY
WindSpeedMeasurement=kts
MetarDate=22
MetarTime=1900
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=km
MetarCloud=Mostly Clear
MetarMaxCloud=2
MetarTemp=19
MetarDewpoint=08
MetarPressure=1031 Millibars)"},
    {"PAPC 251454Z 10003KT 12SM SCT013 BKN035 13/ A2989",
     R"(MetarICAO=PAPC
WindSpeedMeasurement=kts
WindDirection=100 degrees
WindSpeed=003
MetarDate=25
MetarTime=1454
MetarVisiblity=12 Mile(s)
MetarVisibilityFormat=mph
MetarCloud=Mostly Cloudy
MetarMaxCloud=4
MetarTemp=13
MetarPressure=29.89 Inches of Mercury)"},
    // The type word takes the station's place, and the trailing "=" makes the pressure too long.
    {"METAR EDTL 210620Z 20004KT CAVOK M02/M03 Q1041=",
     R"(MetarICAO=METAR
WindSpeedMeasurement=kts
WindDirection=200 degrees
WindSpeed=004
MetarDate=21
MetarTime=0620
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=cavok
MetarCloud=No significant cloud below 5000 feet (CAVOK)
MetarMaxCloud=1
MetarTemp=Minus 02
MetarDewpoint=Minus 03)"},
    // A misprinted speed of three digits stays as written.
    {"ENML 171150Z 060148KT CAVOK 03/M07 Q1013",
     R"(MetarICAO=ENML
WindSpeedMeasurement=kts
WindDirection=060 degrees
WindSpeed=148
MetarDate=17
MetarTime=1150
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=cavok
MetarCloud=No significant cloud below 5000 feet (CAVOK)
MetarMaxCloud=1
MetarTemp=03
MetarDewpoint=Minus 07
MetarPressure=1013 Millibars)"},
    // "-FZRA": the unknown pair leaves only the joined one.
    {"BGPT 230220Z AUTO 12012KT 9999NDV -FZRA FEW007/// BKN020/// M05/M09 Q0990",
     R"(MetarICAO=BGPT
WindSpeedMeasurement=kts
WindDirection=120 degrees
WindSpeed=012
MetarDate=23
MetarTime=0220
MetarWeather=and Rain
MetarWeatherStrength=Light 
MetarCloud=Mostly Cloudy
MetarMaxCloud=4
MetarTemp=Minus 05
MetarDewpoint=Minus 09
MetarPressure=0990 Millibars)"},
    // "-RA" sets the strength, so "-UP" and everything behind it is read past a sign.
    {"SPECI CYZY 152231Z AUTO 07014G25KT 010V110 9SM -RA -UP SCT033 OVC050 04/M04 A3002 RMK SLP193=",
     R"(MetarICAO=SPECI
WindSpeedMeasurement=kts
WindDirection=070 degrees
WindSpeed=014
WindGusting=True
WindGust=25
WindVarying=True
WindVaryingFrom=010
WindVaryingTo=110
MetarDate=15
MetarTime=2231
MetarVisiblity=9 Mile(s)
MetarVisibilityFormat=mph
MetarWeather=Rain
MetarWeatherStrength=Light 
MetarCloud=Overcast
MetarMaxCloud=5
MetarTemp=04
MetarDewpoint=Minus 04
MetarPressure=30.02 Inches of Mercury)"},
    {"CYQL 230000Z 04012G19KT 4SM -RASN OVC009 01/01 A2963 RMK ST8 SLP064",
     R"(MetarICAO=CYQL
WindSpeedMeasurement=kts
WindDirection=040 degrees
WindSpeed=012
WindGusting=True
WindGust=19
MetarDate=23
MetarTime=0000
MetarVisiblity=4 Mile(s)
MetarVisibilityFormat=mph
MetarWeather=Rain and Snow
MetarWeatherStrength=Light 
MetarCloud=Overcast
MetarMaxCloud=5
MetarTemp=01
MetarDewpoint=01
MetarPressure=29.63 Inches of Mercury)"},
    {"SVGU 230003Z AUTO NIL", R"(MetarICAO=SVGU
MetarDate=23
MetarTime=0003)"},
    // A wind without a unit is none, and "MIST" is no code: the pair "st" is unknown.
    {"OPRK 250316Z 00000 0800 MIST SKC 13/11 1019",
     R"(MetarICAO=OPRK
MetarDate=25
MetarTime=0316
MetarVisiblity=0800m
MetarVisibilityFormat=km
MetarCloud=Sky Clear
MetarMaxCloud=1
MetarTemp=13
MetarDewpoint=11)"},
    // Two pressures: the first "q" hides nothing that is still wanted, and the first group counts.
    {"OIIY 101750Z 00000KT CAVOK 08/01 Q1024 A3024",
     R"(MetarICAO=OIIY
WindSpeedMeasurement=kts
WindDirection=Calm
WindSpeed=0
MetarDate=10
MetarTime=1750
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=cavok
MetarCloud=No significant cloud below 5000 feet (CAVOK)
MetarMaxCloud=1
MetarTemp=08
MetarDewpoint=01
MetarPressure=1024 Millibars)"},
    {"METAR MRLM 101800Z 25005KT 9999 3000 SW TSRA FEW006 SCT15CB BKN035  23/22 A2984 RMK TS SW W",
     R"(MetarICAO=METAR
WindSpeedMeasurement=kts
WindDirection=250 degrees
WindSpeed=005
MetarDate=10
MetarTime=1800
MetarVisiblity=Greater than 10km
MetarVisibilityFormat=km
MetarWeather=Thunderstorm and Rain
MetarWeatherStrength=Moderate 
MetarCloud=Mostly Cloudy: Cumulonimbus observed
MetarMaxCloud=4
MetarTemp=23
MetarDewpoint=22
MetarPressure=29.84 Inches of Mercury)"},
};

} // namespace morvane::test
