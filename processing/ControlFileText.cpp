// The text of the control file. Lines are exactly as written, with blanks at their ends; variable parts are
// in braces, and blocks repeated between lines in brackets. The processor reads only the text between "!";
// users read the rest.

#include "processing/ControlFileText.h"

namespace zg {

// clang-format off
const std::string_view controlFileText =
R"INP(TEMPOLINE.INP   1.0
{TITLE}
---------------- Run title (1 line) ------------------------------------------

                 TEMPOLINE PROCESSOR CONTROL FILE
                 --------------------------------

-------------------------------------------------------------------------------

INPUT GROUP: 0 -- Input and Output File Names
--------------

NOTE: file/path names can be up to 132 characters in length

-------------
Subgroup (0a)
-------------

Default Name     Type          File Name
------------     ----          ---------
TEMPOLINE.LST    output      ! TSFLST  = {BASE}_tempoline.lst !
ROSEPLOT         output      * ROSEPLT = *

Note: The ROSEPLT name provided is a base name to which standard
      filename extensions (.FRQ, .TAB, .BNA, .SCA) are added for
      making wind roses or pollutant roses/scatterplots from
      existing TSF files.
      (Used only if MDATA=TSF, and MROSE>0)

INPUT data files (see MDATA in INPUT GROUP 1)
-------------------------------------------------

     Number of Meteorological Data files for run
     (NMETINP)                       No Default       ! NMETINP = 1 !

     Number of Air Quality Data files for run
     (NAQINP)                        No Default       ! NAQINP = 0 !

OUTPUT TSF files (see MDATA in INPUT GROUP 1)
------------------------------------------------------

     Number of Timeseries files created
     (NTSFOUT)                       No Default       ! NTSFOUT = {NTSFOUT} !

     All file names will be converted to either lower or upper case
     (LCFILES)                       Default: F       ! LCFILES = F !
         T = lower case
         F = UPPER CASE

!END!

-------------
Subgroup (0b)
-------------

     Meteorological data from the following filenames may be processed
     in sequence  (provide NMETINP lines)

     ! METINP = {INPUTFILE} !   !END!

-------------
Subgroup (0c)
-------------

     Air Quality data from the following filenames may be processed
     in sequence  (provide NAQINP lines)

     * AQINP = *   *END*

-------------
Subgroup (0d)
-------------

     Timeseries data are written to the following NTSFOUT files
     (provide NTSFOUT pairs of lines)
     NOTE:  .TSF file extension WILL BE ADDED to the names provided, as
            will .FRQ and .TAB (MROSE=1), or .BNA and .SCA (MROSE=2), so
            the TSFOUT filenames should be provided without extensions.

[per output]
     ! TSFID  = {ID} !
     ! TSFOUT = {OUTNAME} !   !END!

[end per output]

--------------------------------------------------------------------------------
INPUT GROUP: 1 -- General run control parameters
--------------

     Wind Rose or Pollutant Rose output files can be created when TSF files
     are created or they can be created from existing TSF files.  The
     wind rose output consists of frequency tabulations in both tabular
     format (.TAB) and in a format that can be immediately plotted (.FRQ).
     The pollutant rose output consists of geo-referenced concentration/wind
     distributions showing the peak and average pollutant concentration for
     each wind direction sector (.BNA), and a geo-referenced scatterplot
     file (.SCA) posting each concentration upwind of the AQ site using
     current wind data (1-hour transport).

     Wind Rose / Pollutant Rose output
     (MROSE)                         Default: 0          ! MROSE = 1 !
        0 = Do not create rose files
        1 = Create wind rose files
        2 = Create pollutant rose files


     Information required by the processor and the output it creates depend
     on the meteorological or air quality data being processed.  Valid
     Input Data Types (MDATA) are:

        Meteorological Data Extracted to TSF File(s)
          MDATA       Input_Type    NMETINP  NAQINP  NTSFOUT  MROSE
          --------    -----------   -------  ------  -------  -----
          M2D         2D.DAT          1+       0       1+      0
          M3D         3D.DAT          1+       0       1+      0,1
          VENTOS      VENTOS.DAT      1+       0       1+      0,1
          UP          UP.DAT          1        0       1+      0,1
          SURF        SURF.DAT        1        0       1+      0,1
          MONITORW    MONITORW.CSV    1        0       1       0,1
          AERMSFC     SURFACE.DAT     1        0       1       0,1
          AERMPFL     PROFILE.DAT     1        0       1+      0,1

        Air Quality Data Extracted to TSF File(s)
          MDATA       Input_Type    NMETINP  NAQINP  NTSFOUT  MROSE
          --------    -----------   -------  ------  -------  -----
          MONITORC    MONITORC.CSV             1       1       0,2
                      MONITORW.CSV    1
          MONITORC    MONITORC.CSV             1       1        0
                      MONITORW.CSV    0
          POSTIME     SUMMATE TS               1       1      0,1,2
                      TIMESERIES.TSF 1
          FUMAROL     CONC.DAT        0        1+      1+       0

        Meteorological and Air Quality Data Read from TSF File(s)
        to produce either Wind Rose or Pollutant Rose Plots
          MDATA       Input_Type    NMETINP  NAQINP  NTSFOUT  MROSE
          --------    -----------   -------  ------  -------  -----
          TSF         TIMESERIES.TSF  1        0       0        1
          TSF         TIMESERIES.TSF  1        1       0        2

     Input Data Type
     (MDATA)                         No default          ! MDATA = {MDATA} !


     --- Time Period for Output ---
     ------------------------------

     Starting date:    Year   (IBYR)  --    No default   ! IBYR  = {IBYR} !
                       Month  (IBMO)  --    No default   ! IBMO  = {IBMO} !
                       Day    (IBDY)  --    No default   ! IBDY  = {IBDY} !
     Starting time:    Hour   (IBHR)  --    No default   ! IBHR  = {IBHR} !
                       Second (IBSEC) --    No default   ! IBSEC = {IBSEC} !

     Ending date:      Year   (IEYR)  --    No default   ! IEYR  = {IEYR} !
                       Month  (IEMO)  --    No default   ! IEMO  = {IEMO} !
                       Day    (IEDY)  --    No default   ! IEDY  = {IEDY} !
     Ending time:      Hour   (IEHR)  --    No default   ! IEHR  = {IEHR} !
                       Second (IESEC) --    No default   ! IESEC = {IESEC} !

)INP"
R"INP(     UTC time zone (character*8)
     (ABTZ)                          No default          ! ABTZ = {ABTZ} !

        PST = UTC-0800, MST = UTC-0700 , GMT = UTC+0000
        CST = UTC-0600, EST = UTC-0500

     Length of output time-step (seconds)
     (NSECDT)                        Default:3600        ! NSECDT = {NSECDT} !
                                     Units: seconds

     --- Spatial Interpolation Method (SIM) for METEOROLOGICAL Output ---
     --------------------------------------------------------------------

     Meteorological data extracted from GRIDDED fields (e.g., M2D, M3D, VENTOS)
     may either be interpolated to the requested location, or may be extracted
     from the nearest grid cell.
     Exceptions:  Stability Class is never interpolated

     Type of interpolation for extraction location
     (METSIM)                        Default: 1          * METSIM = *
       1 = Use BILINEAR interpolation
       2 = Use NEAREST model grid cell index (i,j)

!END!

--------------------------------------------------------------------------------
INPUT GROUP: 2 -- Extracted data for each output TSF file
--------------

     Meteorological data - provide NTSFOUT groups of lines (only if NMETINP>0)
     
                IDSTN   XESTN     YNSTN     ZWIND  ZTEMP  ZRHUM  OTHER
                -----   -----     -----     -----  -----  -----  -----
[per output]
     ! TSFID  = {ID} !
     ! LOCMET = {LOCATION} !
   or      * LOCMET = *
     ! MET = {STATION}, 0, 0, {HEIGHT}, -1., -1., -1. !  !END!

[end per output]

     Air Quality data - provide NTSFOUT groups of lines (only if NAQINP>0)

                IDSTN   XESTN     YNSTN
                -----   -----     -----


     ----------
     Note:  TSFID =  File ID (must match entry in Sub-Group 0d)
            IDSTN =  ID for location
            XESTN =  X-Easting Coordinate (km, deg, or cell)*
            YNSTN =  Y-Northing Coordinate (km, deg, or cell)*
            ZWIND =  Measurement height (m AGL) for wind        (-1. to exclude)
            ZTEMP =  Measurement height (m AGL) for temperature (-1. to exclude)
            ZRHUM =  Measurement height (m AGL) for humidity    (-1. to exclude)
            OTHER =  Include other available data?              (1.=YES, -1.=NO)

          * XESTN, YESTN are in the projection selected in INPUT GROUP 4 which
            includes LL (E. Longitude, N. Latitude as Easting and Northing).
            For M3D input, a third location option is available (see Input Group 5):
               -if MCELL = 0, XESTN, YESTN are in the INPUT GROUP 4 projection
               -if MCELL = 1, XESTN, YESTN are in fractional model grid cell units
                (e.g.,i=3.2/j=15.88) and will be recalculated internally to the
                map projection selected in INPUT GROUP 4


--------------------------------------------------------------------------------
INPUT GROUP: 3 -- Species List for output
--------------   (Used only if NTSFOUT>0 and NAQINP>0)

-------------
Subgroup (3a)
-------------

     Number of pollutant species
     (NSPEC)                         Default: 0          * NSPEC = 0 *

!END!

-------------
Subgroup (3b)
-------------

     Provide NSPEC groups to declare output names, units, and molecular wt.


     ----------
     Note:  Valid units are: PPM, PPB, G/M3, MG/M3, UG/M3, NG/M3
            Use Molecular Wt = -1.0 for species that are not converted
              from mass/vol

--------------------------------------------------------------------------------
INPUT GROUP: 4 -- Map Projection and Datum for all locations
--------------   (Used only if NTSFOUT>0)

     Projection:
     -----------

     Map projection
     (PMAP)                     Default: UTM    ! PMAP = NONE !

         NONE:  NO coordinates
           LL:  Geodetic (latitude / longitude)
          UTM:  Universal Transverse Mercator
          TTM:  Tangential Transverse Mercator
          LCC:  Lambert Conformal Conic
           PS:  Polar Stereographic
           EM:  Equatorial Mercator
         LAZA:  Lambert Azimuthal Equal Area

     False Easting and Northing (km) at the projection origin
     (Used only if PMAP= TTM, LCC, or LAZA)
     (FEAST)                    Default=0.0     * FEAST  = 0.0 *
     (FNORTH)                   Default=0.0     * FNORTH = 0.0 *

     UTM zone (1 to 60)
     (Used only if PMAP=UTM)
     (IUTMZN)                   No Default      * IUTMZN = *

     Hemisphere for UTM projection?
     (Used only if PMAP=UTM)
     (UTMHEM)                   Default: N      * UTMHEM = N *
         N   :  Northern hemisphere projection
         S   :  Southern hemisphere projection

     Latitude and Longitude (decimal degrees) of projection origin
     (Used only if PMAP= TTM, LCC, PS, EM, or LAZA)
     (RLAT0)                    No Default      * RLAT0 = *
     (RLON0)                    No Default      * RLON0 = *

         TTM :  RLON0 identifies central (true N/S) meridian of projection
                RLAT0 selected for convenience
         LCC :  RLON0 identifies central (true N/S) meridian of projection
                RLAT0 selected for convenience
         PS  :  RLON0 identifies central (grid N/S) meridian of projection
                RLAT0 selected for convenience
         EM  :  RLON0 identifies central meridian of projection
                RLAT0 is REPLACED by 0.0N (Equator)
         LAZA:  RLON0 identifies longitude of tangent-point of mapping plane
                RLAT0 identifies latitude of tangent-point of mapping plane

     Matching parallel(s) of latitude (decimal degrees) for projection
     (Used only if PMAP= LCC or PS)
     (XLAT1)                    No Default      * XLAT1 = *
     (XLAT2)                    No Default      * XLAT2 = *

         LCC :  Projection cone slices through Earth's surface at XLAT1 and XLAT2
         PS  :  Projection plane slices through Earth at XLAT1
                (XLAT2 is not used)

     ----------
     Note:  Latitudes and longitudes should be positive, and include a
            letter N,S,E, or W indicating north or south latitude, and
            east or west longitude.  For example,
            35.9  N Latitude  =  35.9N
            118.7 E Longitude = 118.7E

)INP"
R"INP(
     DATUM-Region
     ------------

     The Datum-Region for the coordinates is identified by a character
     string.  Many mapping products currently available use the model of the
     Earth known as the World Geodetic System 1984 (WGS-84).  Other local
     models may be in use, and their selection in VENTOS will make its output
     consistent with local mapping products.  The list of Datum-Regions with
     official transformation parameters is provided by the National Imagery and
     Mapping Agency (NIMA).

     NIMA DATUM - Regions(Examples)
     ------------------------------------------------------------------------------
     WGS-84    WGS-84 Reference Ellipsoid and Geoid, Global coverage (WGS84)
     NAS-C     NORTH AMERICAN 1927 Clarke 1866 Spheroid, MEAN FOR CONUS (NAD27)
     NAR-C     NORTH AMERICAN 1983 GRS 80 Spheroid, MEAN FOR CONUS (NAD83)
     NWS-84    NWS 6370KM Radius, Sphere
     ESR-S     ESRI REFERENCE 6371KM Radius, Sphere

     Datum-region for output coordinates
     (DATUM)                    Default: WGS-84    * DATUM = *


!END!

--------------------------------------------------------------------------------
INPUT GROUP: 5 -- Additional configuration options for processing 3D.DAT data
--------------   (Used only if MDATA=M3D)

     Several profiling options are available for computing wind/temperature
     below the first height in the data file.  Linear interpolation is used
     above the first height.

     Profile Method near surface
     (MPROF)                         No Default          * MPROF = *

       1 = STANDARD
         - Wind and temperature profiling based on Louis (1979) for heights
           below first level (interpolate above)
         - Profile subroutine adapted from LOFTMOD
         - Minimum wind speed = 0.01 m/s
         - Specific humidity is set to level 1 (interpolate above)

       2 = METSTAT
         - Same as STANDARD with following EXCEPTIONS:
         - Disables virtual temperature treatment
         - Theta-star uses Prandtl number = 1/1.35
         - Average potential temperature replaces that at surface for g/T
           factor in bulk Richardson number
         - Disables iterative search for z0h (temperature roughness) and
           sets z0h = z0m.

       3 = NEUTRAL
         - Wind profiling uses neutral log relation for heights below first
           level (interpolate above)
         - Temperature is set to level 1 (interpolate above)
         - Specific humidity is set to level 1 (interpolate above)

       4 = DIRECT
         - Extracts 10m-wind, 2m-temperature and 2m-specific humidity from file.
         - Not available for some older MM5 output files


     The extraction location XESTN/YNSTN in INPUT GROUP 2 may be specified in a
     valid map projection (e.g., X/Y (km) or East-Longitude/North-Latitude(deg))
     prescribed in INPUT GROUP 4, or as a fractional model grid cell unit (e.g.,
     i=3.2/j=15.88).  The coordinates that are written to the output TSF file
     header are those for the map projection in INPUT GROUP 4.  Note that the
     first cell location in the SW corner is (1,1), not (0,0).

     Type of coordinates for extraction location
     (MCELL)                         Default: 0          * MCELL = 0 *
       0 = Use map coordinates
       1 = Use fractional model grid cell index (i,j)


     Number of land use categories in data file (typically 25)
     (NLU3D)                         Default: 25         * NLU3D = 25 *


     The following specifications are required only for 'old' 3D.DAT formats
     Model coordinates for cell (1,1)
     (XYCELL1)                       Default: 0.,0.      * XYCELL1 = 0.,0. *
                                       Units: KM
     Model cell size
     (DXYCELL)                       Default: 0.,0.      * DXYCELL = 0.,0. *
                                       Units: KM

!END!

--------------------------------------------------------------------------------
INPUT GROUP: 6 -- Wind Rose output options (Used only if MROSE=1)
--------------

-------------
Subgroup (6a)
-------------

     Define wind speed bins:  Provide 6 speeds in increasing order
     for the lower threshold of each bin (m/s)
     (WSBIN)                 Default: 0.5, 1.8, 3.3, 5.4, 8.5, 10.8
                            ! WSBIN = {WSBIN} !

     Number of seasons for frequency tabulations (1 or more)
     (NSEASN)                        Default: 4          ! NSEASN = {NSEASN} !

     Number of time periods for additional wind roses
     (NTPD)                          Default: 0          ! NTPD = 4 !

     Number of wind speed ranges for additional wind roses
     (NWSP)                          Default: 0          ! NWSP = 0 !

!END!

-------------
Subgroup (6b)
-------------

     Define Seasons:  Provide NSEASN pairs of season ID and name,
                      and assign a season ID to each month

     (Default is 4 seasons: 1 Winter, 2 Spring, 3 Summer, 4 Fall)
[per season]

     ! IDSEAS   = {SEASONID} !
     ! SEASNAME = {SEASONNAME} !  !END!
[end per season]

     Assign season IDs to months 1-12:
     (Default: 1   1   2   2   2   3   3   3   4   4   4   1 )
              Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec
     ! MSN = {MSN} !  !END!


-------------
Subgroup (6c)
-------------

     Define time periods for additional wind roses
     Provide NTPD pairs of times using hour-ending (00-23) notation

     ! HR = 01,06 !               !END!
     ! HR = 07,12 !               !END!
     ! HR = 13,18 !               !END!
     ! HR = 19,00 !               !END!


-------------
Subgroup (6d)
-------------

     Define single wind speed ranges for additional wind roses
     Provide NWSP pairs of wind speed (m/s)


--------------------------------------------------------------------------------
INPUT GROUP: 7 -- Pollutant Rose output options (Used only if MROSE=2)
--------------

     The pollutant rose output consists of geo-referenced concentration/wind
     distributions showing the peak and average pollutant concentration for
     each wind direction sector (.BNA), and a geo-referenced scatterplot
     file (.SCA) posting each concentration upwind of the AQ site using
     current wind data (1-hour transport).  These outputs can be plotted on
     a map of the region to identify local potential source regions.

)INP"
R"INP(     Species Name (SO2, NO, NO2, NOx, CO, O3, H2S, PM10 or PM2.5)
     (PSPEC)                         No Default          * PSPEC = *

     Output Units (UG/M3, G/M3, NG/M3, MG/M3, PPB, or PPM)
     (PUNIT)                         No Default          * PUNIT = *

     Size (radius) of rose in map distance units (usually km)
     (RROSE)                         Default: 20.        * RROSE = 20. *

     Concentration of rose at RROSE radius (in PUNIT units)
     Enter -1. to automatically scale to peak concentration
     (CROSE)                         Default: -1.        * CROSE = -1. *

!END!
[of a table]

--------------------------------------------------------------------------------
INPUT GROUP: 8 -- Layout of a table of winds (Used only if MDATA=CSV)
--------------

     Between the values: COMMA, SEMICOLON, TAB, BLANKS or one character
     (CSVSEP)                        Default: COMMA
     POINT or COMMA before decimals
     (CSVDEC)                        Default: POINT
     Number of lines before the first record
     (CSVHEAD)                       Default: 1
     Which of them has the names of the columns (0 for none)
     (CSVNAME)                       Default: 1
     Columns of the time, from 1: one, date and time, or year, month, day
     [, hour [, minute]]
     (CSVTIME)                       No Default
     Form of the time: YMD, DMY, MDY, PARTS, EPOCH, or a pattern such as
     %d.%m.%Y %H:%M
     (CSVFORM)                       Default: YMD
     A time is the BEGIN or the END of its record
     (CSVSTMP)                       Default: BEGIN
     Length of a record (seconds)
     (CSVLEN)                        Default: 3600
     Column of the wind speed, and its unit: M/S, KNOTS, KM/H, MPH, DM/S
     (CSVSPD)                        No Default
     (CSVUNIT)                       Default: M/S
     Column of the wind direction (degrees, where the wind blows from)
     (CSVDIR)                        No Default
     A text that stands for a missing value, beside the usual ones
     (CSVMISS)                       Default: none
     Column of the stations and the one to take, of a table with several
     (CSVSTN)                        Default: none
     (CSVID)                         Default: none
     Zone of times that name none themselves
     (CSVZONE)                       Default: that of ABTZ

[table keys]

!END!
[end of a table]
)INP";
// clang-format on

}  // namespace zg
