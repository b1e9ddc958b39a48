#!/bin/bash
#name=Small labels
#description=For the shelf
lpoptions -pP -oPrintSpeed=3 -oDarkness=8 -oMirrorPrint=True -rNegativePrint -oJobStart='^XA\\\\r^XZ\\\\r'
