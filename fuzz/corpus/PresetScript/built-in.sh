#!/bin/bash
#index=0
#name=x
lpoptions -pP
