#!/bin/bash
lpoptions -pP -oShift=1.000 -oGapOffset=2.000
ppdhack 2.25 1.25 P
