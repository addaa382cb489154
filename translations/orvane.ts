<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>AllAxesStop</name>
    <message>
        <source>%1(%2) axis %3 (%4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All axes stopped (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop All: %1 axes stopped; the board refused to stop %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AxisMotionReadout</name>
    <message>
        <source>Command position of this axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual (encoder) position of this axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command speed: minus while the axis moves in the minus direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cmd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Act</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AxisTestForm</name>
    <message>
        <source>Home Repeatability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positioning (ISO 230-2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive speed of the test&apos;s moves; 0 keeps the axis&apos;s positioning profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed [pps]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the servo on first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move away [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance of the range [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Approaches each way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overrun [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dwell [ms]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance of the accuracy A [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relative back and forth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute between two points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute through a list of points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The distance, the two points or the list of points, in pulses, separated by commas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positions [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or duration [s]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest following error [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop at the first fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Positions&quot; must be whole numbers separated by commas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents/Orvane Axis Tests; each run in a dated folder inside</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AxisTestPlots</name>
    <message>
        <source>Completed position of each search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deviation against target position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycle time over the cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest following error of each cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completed position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean deviation, approach from below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+2s from below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-2s from below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean deviation, approach from above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+2s from above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-2s from above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deviation [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycle time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest following error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following error [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AxisTestReport</name>
    <message>
        <source>Axis Test: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board and axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At each target (pulses)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters of the card and the axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At each target (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AxisTestRun</name>
    <message>
        <source>No axis is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only a run-in tests several axes at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An axis is named twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of runs must be from 1 to 10000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dwell must be from 0 to 600000 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The speed must be a positive number of pulses per second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of targets must be from 2 to 1000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The travel is too short for %1 targets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The overrun must not be negative.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run-in needs a number of cycles or a duration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The move pattern needs at least %1 position(s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The servo of axis %1 is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1 is moving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position %1 of axis %2 is outside its soft limits (%3 to %4).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following error of %1 pulses on axis %2, over the tolerance of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The board refused the move (result %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped with code %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AxisValueGridModel</name>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BoardCallText</name>
    <message>
        <source>Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BoardStartup</name>
    <message>
        <source>FAIL! %1 NOT SUPPORT THE PROCESS....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAIL! %1 CHECK THE HARDWARE VERSION....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAIL! %1 CEHCK UP-BOARD POSITION....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAIL! %1 DATA BUS LINE ERRORR....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAIL! %1 DATA BUS LINE ERROR....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAIL! %1 PARAMETER FILE DOES NOT MATCH....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAIL! LOAD DEVICE DRIVER ....</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1(%2) board parameters are changed.
Do you want to save parameter to file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NrxSimBoards.ini: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1(%2): SaveFile returned %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parameter file was not saved:
%1
Orvane stays open; exit again to retry, or answer No to leave the values unsaved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_AboutDlg</name>
    <message>
        <source>About Orvane</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_ActSpdCalDlg</name>
    <message>
        <source>Actual Speed Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed [pps]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requested (grey) and actual (blue) speed profile of one move: ramp up, a short cruise, ramp down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis No. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Drive Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Initial Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Accel Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Decel Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pps]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Speed Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paravola(S-Curve)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Range Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed magnification R: speeds are whole multiples of R, from R to R x 8000 pps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_AxStMonWnd</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis No. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit %1 of each word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Status - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_AxisTestWnd</name>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the tested axes at once and writes a partial report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value [pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Test - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test cannot start: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>samples.csv cannot be written in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>window closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycle %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, elapsed %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 s left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, worst following error %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_AxisUnitsDlg</name>
    <message>
        <source>Axis Units - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave Pulses/Unit empty to show an axis in pulses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulses/Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Axis : Pulses/Unit &quot;%2&quot; is not a positive number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Axis : enter the name of the unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The axis units could not be written to %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_BoardCallWnd</name>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board Calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show operations whose name contains this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window or pane that made the call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide polling reads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the reads the windows repeat every 10 ms (Done, positions, status words, inputs)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failures only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only setters, moves and stops that the board refused (a negative result)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop or resume recording board calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget every call recorded so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected rows to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the rows shown to a CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not write %1 !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_ComparePrmDlg</name>
    <message>
        <source>Compare Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> A </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> B </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read both sources and list their parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Differences only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the parameters both sources agree on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be compared:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 parameters differ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Scale</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_CopyPrmDlg</name>
    <message>
        <source>Copy Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> From </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> To </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> To All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick or untick every axis of the target card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_DIoWnd</name>
    <message>
        <source>The inputs of the page as a hexadecimal word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Filter Setting </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the card filters its digital inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long an input must hold before it counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Prm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the filter settings to the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Output Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock every output against clicks and writes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outputs 1, 3, 5, ... counted from one on, the rest off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outputs 2, 4, 6, ... counted from one on, the rest off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every output of the page on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every output of the page off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital IO - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DI_%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DO_%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The outputs of the page as a hexadecimal word; type a word and press Enter to write it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_ExportPrmDlg</name>
    <message>
        <source>Export Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Cards </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file to write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file to write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter files (*.ini);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file to export to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parameters could not be exported to %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parameters of %1 card(s) were exported to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_FilterSetWnd</name>
    <message>
        <source>Filter Time [msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable
(with EMG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable
(with SYNC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+Limit
-Limit
Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inposition
Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoder Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_ImportPrmDlg</name>
    <message>
        <source>Import Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the parameter file to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to Boards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the file values listed above to the boards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter files (*.ini *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be imported; nothing will be written:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The boards already hold every value of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 parameter(s) would change:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Skipped %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axes are moving !
Can not import parameters !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write %1 changed parameter(s) to the boards?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
%1 axis unit scale(s) would change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The axis unit scales could not be written to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep %1 axis unit scale(s) of the file on this PC?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The boards refused %1 write(s); these values were not written:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrote the parameters of %1 to %2 (not saved yet)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_LogLevDlg</name>
    <message>
        <source>Log Level Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Log Level : </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_MainFrame</name>
    <message>
        <source>Axes are moving !
Can not change active controller !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IO Monitoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual Speed Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Parameters...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Parameters...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare Parameters...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Environment Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Arrange Icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Orvane...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop All Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop All Axes (F12): stops every axis of every board at once and ends every running motion sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Status - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion Status - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_MnMtnWnd</name>
    <message>
        <source>Selected axis in not checked !
 Please check selected axis !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please Select at least 2 axes !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gantry Limit Error !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi Axis Motion - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrote the motion parameters of %1 axis %2 to the board (not saved yet)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_MtnPrmWnd</name>
    <message>
        <source> Soft-Limit </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+Soft-Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-Soft-Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Count Ring </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Range Magnification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed magnification R (1 to 500): speeds run from R to R x 8000 pps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Speed Mode </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Command </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EA/EB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Origin Direction </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> COMP Counter </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(100 ~ 800000)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_PrmSuWnd</name>
    <message>
        <source>System IO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Prm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the shown page to the board</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Prm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the shown page&apos;s parameters to axes of another card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Prm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the factory parameters of this axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter Setup - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 axis parameter set to default value?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrote &quot;%1&quot; of %2 axis %3 to the board (not saved yet)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, axis %2, &quot;%3&quot;:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SavePrmDlg</name>
    <message>
        <source>Save Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> All Cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the board parameter file of the chosen card, or of every card when &quot;All Cards&quot; is ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to save the parameter files of all the cards?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parameter file was not saved:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1(%2): SaveFile returned %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1 to its parameter file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1 to their parameter files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_ScopeWnd</name>
    <message>
        <source>Scope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel: zoom; drag: pan; right or Shift drag: zoom to a box; double click: fit; drag a dashed line: cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time between two samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time the record keeps (the ring&apos;s length)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-arm after each capture instead of one single shot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the record to a CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open CSV...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View a record from a CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save PNG...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the plot as a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewing file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select at least one channel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Predicted by the speed calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not write %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not read %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scope - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not write %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved the record to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved the plot to %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SimulatorWnd</name>
    <message>
        <source> +Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plus limit switch held actuated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> -Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minus limit switch held actuated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>origin switch held actuated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Encoder Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encoder Z mark held on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drive alarm, latched until an alarm reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> INP On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in-position line stuck on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> INP Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in-position line stuck off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Enc. Loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encoder lost: the actual position stands still</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults (act at once, as the real inputs would)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> EMG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The card&apos;s emergency-stop switch pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forced Results (the operation does nothing)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result the operation returns while forced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen operation returns the result and does nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every operation of the family works again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches set here hold until switched back or until NrxSimFaults.ini changes, which sets them all as it says.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The boards of this family are not simulated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 returns %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SnMtnHomeWnd</name>
    <message>
        <source>0 : LowHome (ORG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : LowHome (ORG+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 : HighHome (ORG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 : HighHome (ORG+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 : LowHome (Limit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 : LowHome (Limit+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 : HighHome (Limit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 : HighHome (Limit+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 : LowHome (EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9 : CurPos (ORG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Home Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Home Direction </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CCW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pps]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> High Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Low Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Acc/Dec Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pulse]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SnMtnPtpWnd</name>
    <message>
        <source>[msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Infinite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Delay Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Repeat Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Cycle Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Distance</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SnMtnWnd</name>
    <message>
        <source>Axis No. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point To Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record this axis&apos; positions and speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single Axis Motion - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrote the %1 parameters of %2 axis %3 to the board (not saved yet)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>motion</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_StBaseWnd</name>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the first four axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the previous four axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the next four axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the last four axes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SysCfgDlg</name>
    <message>
        <source>System Environment Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Default Show Axis Status Window </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Change Status Window Axis Depeng On Operation Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SysDbgWnd</name>
    <message>
        <source>System Diagnosis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cmd Pos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Act Pos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cmd Vel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position / Speed Status </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Axis IO Status </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Digital Input Status </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Digital Output Status </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Type : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group_0 (   0 ~ 31 )  :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group_1 ( 32 ~ 63 )  :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits %1 to %2, bit %1 on the right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SysIOSetWnd</name>
    <message>
        <source> Alarm </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Inposition </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Limit </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Origin </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Encoder Z </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Counter Clear </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Time [msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> EMG </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Remark </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Active : Normal Open
High Active : Normal Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Independence Axis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows the limit level while the home mode searches a limit switch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SysIoWnd</name>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emergency-stop input of the card: green while the EMG switch is active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run LED output of the card: red while on; click to switch it over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Output Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock every output against clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Alm Rst On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm-reset output of every axis on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Alm Rst Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm-reset output of every axis off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Servo On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo-on output of every axis on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Servo Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo-on output of every axis off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System IO - %1(%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1 %2: green while on, grey while off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1: not on this card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Encoder Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encoder Z mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>servo alarm input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Inposition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in-position input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> +Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plus limit switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>origin switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> -Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minus limit switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Alm Rst</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>alarm-reset output: red while on; click to switch it over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> C. Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>counter-clear output: click to send one counter-clear pulse; red while the pulse lasts (RN boards cannot report it)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> S-On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>servo-on output: red while on; click to switch it over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> EMG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Run Led</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_SysRstDlg</name>
    <message>
        <source>System Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset the chosen card; open tool windows reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want system reset?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_UtMtnStWnd</name>
    <message>
        <source>Command Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command Velocity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COV_WsSysWnd</name>
    <message>
        <source>Axis : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IO : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Active Controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dll Ver. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Ver. : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters written to the board but not saved to its parameter file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CardSelectorRow</name>
    <message>
        <source>Card No. : </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CounterPresets</name>
    <message>
        <source>[pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Set Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Set Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DigitalPointPage</name>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2: not on this card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input %1: green while the input is on, grey while off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output %1: red while the output is on; click to switch it over</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageBoxPrompt</name>
    <message>
        <source>... and %1 more line(s) under Show Details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MotionButtonActions</name>
    <message>
        <source>Servo is off: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MotionButtonColumn</name>
    <message>
        <source>-Jog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+Jog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dec.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pos. 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pos. 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Prm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop at once, without deceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop with the set deceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold the servo driver&apos;s alarm-reset output on while pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulse the servo driver&apos;s counter-clear output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the parameters shown to the board</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MotionErrorCode</name>
    <message>
        <source>Abnormally stopped by positive soft limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by +soft-limit signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by negative soft limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by -soft-limit signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by positive hardware limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by +limit signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by negative hardware limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by -limit signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by alarm input signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by EMG signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already start Encoder z-phase signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormally stopped by ETC. error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MotionSequencer</name>
    <message>
        <source>%1(%2) axis %3: %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MultiAxisForm</name>
    <message>
        <source>[msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pulse]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> All Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Set All Selected Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Prm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Infinite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Delay Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Apply All Selected Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Set Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Set Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Repeat Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Cycle Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Gantry Error Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 : Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Error Limit </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the checked axes at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the checked axes with their deceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the axes&apos; positions and speeds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick the axes that move together; the highlighted axis is the one the fields show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every millisecond while the axes move, compare each checked axis with the next; stop them all when two differ by more than the error limit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrvaneSettings</name>
    <message>
        <source>0 : No Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : Level 1(Only Command Functions)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 : Level 2(Only Errors)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 : Level 3(All Functions)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaneViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterCatalog</name>
    <message>
        <source>Low Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CCW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 : LowHome (ORG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : LowHome (ORG+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 : HighHome (ORG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 : HighHome (ORG+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 : LowHome (Limit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 : LowHome (Limit+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 : HighHome (Limit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 : HighHome (Limit+EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 : LowHome (EZ)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9 : CurPos (ORG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paravola(S-Curve)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CW/CCW Positive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CW/CCW Negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLS POS/DIR Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLS POS/DIR HI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLS NEG/DIR Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLS NEG/DIR HI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x4(EA/EB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x2(EA/EB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x1(EA/EB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up/Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterComparison</name>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterImport</name>
    <message>
        <source>this PC has no %1 board</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this PC has no %1 card %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (the file is for a %2, the card is a %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 card %2 has no axis %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a %2; the file describes it as a %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1(%2)%3: Set%4 returned %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> axis %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterSourceBox</name>
    <message>
        <source>An axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a parameter file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter files (*.ini *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Axis %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterText</name>
    <message>
        <source>not text (binary or damaged data)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>section [%1] given twice (first on line %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 comes before any section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 given twice (first on line %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown parameter %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs in an axis section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs in a card section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 boards have no %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is out of range (%3 .. %4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown header key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>format version %1 is not one this program reads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no [Header] section: not an Orvane parameter file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the header lacks FormatVersion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds no card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the header counts %1 card(s), the file holds %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] lacks Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] counts %2 axes, the file holds %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] has no card section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] lacks %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too large for a parameter file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-16 text: save the file as UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>... and %1 more fault(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PulsesPerUnit: &quot;%1&quot; is not a positive number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decimals: &quot;%1&quot; is not 0 .. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown unit key %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] lacks PulsesPerUnit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] has no axis section</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileFields</name>
    <message>
        <source>0 : Jog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 : Relative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 : Absolute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Motion Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Drive Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[pps]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Initial Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Accel Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[msec]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Decel Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Acc/Dec Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PromptTexts</name>
    <message>
        <source>Parameters are changed. Do you want to set parameter?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input value is incorrect!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RangeMagnification</name>
    <message>
        <source>Speed range is greater than 0!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed range is smaller than 500!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScopeChannel</name>
    <message>
        <source>Command Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScopeChannelTable</name>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ch %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record this channel; the swatch is its colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board family, card and axis (card.axis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following Error is command minus actual position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit the channel&apos;s values, or show Low to High</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScopeCsv</name>
    <message>
        <source>Not a scope record: the first column must be the time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 has %2 values instead of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: the time goes backwards.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScopeReadout</name>
    <message>
        <source>Cursor 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the dashed cursor lines on the plot; values are the last sample at or before each cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScopeScales</name>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Following Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScopeTriggerControls</name>
    <message>
        <source>Free Run records at once; Axis Starts waits for the trigger channel&apos;s axis to start moving, Level for the trigger channel to cross the level; both keep 10 % before the trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel that triggers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ch %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which way the channel crosses the level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rising</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Falling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Either</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The level, in the trigger channel&apos;s unit as plotted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBitCaptions</name>
    <message>
        <source>ORG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Origin sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoder Z phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EMG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emergency stop input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LMT+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plus limit switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LMT-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minus limit switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RUN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last motion ended in error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HOME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home search in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H-OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home search completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CCLR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter-clear output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo-on output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ARST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm-reset output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMP+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plus comparator: at or beyond the plus soft limit value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMP-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minus comparator: at or beyond the minus soft limit value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed rising</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CNST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed falling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AASND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-curve: acceleration rising</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ACNST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-curve: constant acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ADSND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-curve: acceleration falling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-ORG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by the origin sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-EZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by the encoder Z phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-LMT+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by the plus limit switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-LMT-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by the minus limit switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-ALM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by a servo alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-EMG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by emergency stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emergency stop active on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-RUN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A multi-axis move is running in the group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A home search is running in the group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An axis of the group has completed its home search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A servo-on output of the group is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A servo alarm is active in the group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LMT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A limit switch is active in the group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comparator of the group is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLMT+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped at the plus soft limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLMT-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped at the minus soft limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped on an encoder Z phase mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ETC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped for another reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stop ended a home search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RDY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo ready: servo on and no alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Origin sensor input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoder Z phase input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EX+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plus limit input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EX-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minus limit input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In-position input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servo alarm input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1 running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1 ended in error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis %1 searching its home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running as part of a multi-axis move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-STP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by the stop input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used for this axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input of the other axis of the pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (bit %2): %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusLampPage</name>
    <message>
        <source>%1 Axis</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusWordColumn</name>
    <message>
        <source>%1 status word in hexadecimal, bit 0 on the right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolWindowKinds</name>
    <message>
        <source>System IO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital IO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Diagnosis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board Calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter files (*.ini *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnitScaleImport</name>
    <message>
        <source>pulses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pulses/%2, %3 decimals</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserUnitsActions</name>
    <message>
        <source>Axis Units...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show User Units</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
