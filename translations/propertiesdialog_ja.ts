<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Copies:</source>
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
        <source>Request Print Job Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
