<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Las opciones de %1 no se pueden guardar: son demasiado largas o contienen un salto de línea.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>¿Contraseña de %1 en %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>No se puede acceder a la impresora «%1».</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>El servidor de impresión no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>El servidor de impresión se interrumpió en mitad de una respuesta.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Elegir desplazamiento de impresión ampliado</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Desplazam.:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75mm</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50mm</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25mm</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00mm</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25mm</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50mm</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75mm</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>De %1 a %2 pulgadas</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 pulgadas = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Solo números de %1 a %2, con dos decimales como máximo.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>De %1 a %2 puntos</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 puntos = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Solo números enteros de %1 a %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>El servidor de impresión pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>No se aceptaron. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 no se puede modificar.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 no se puede eliminar.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Usar predeterminada</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Lugar:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir en un archivo</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Número de copias:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>¿Imprimir ahora?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>¿Desea cambiar la impresora actual por 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Cambio de impresora</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Tamaño de página personalizado</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Anchura:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pulgadas</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altura:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Vertical 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Horizontal 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Gestionar...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Ajustes de velocidad</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Densidad de impresión</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Los preajustes guardan sus ajustes de impresión con un nombre
para cambiar rápidamente entre distintas configuraciones.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Lista de preajustes:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Actualizar...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Ajustes del material</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Tipo de material:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Anchura de la marca negra:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Desplazamiento de la marca negra:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Método de impresión:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Manejo del material</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Corte:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Avance:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Retroceso:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>puntos</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Solapamiento:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Ajustes de posición</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Posición de parada:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Posición de inicio:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Comandos de usuario</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Inicio del trabajo</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Inicio de etiqueta</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Fin de etiqueta</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Fin del trabajo</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Ajuste de posición</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Desplazamiento horizontal:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Desplazamiento vertical:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiquetas con separación</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiquetas con marcas</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Sin corte</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Cortar tras el trabajo</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Cortar tras cada página</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Desplazamiento vertical</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Posición de parada</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Tamaño de la separación</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Desplazamiento de la separación</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Tamaño de la marca negra</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Desplazamiento de la marca negra</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Preajuste nuevo</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Preajuste nuevo %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientación: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientación: %1, en espejo</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientación: %1, en negativo</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientación: %1, en espejo y en negativo</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>El controlador de esta impresora no tiene este ajuste.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>De %1 x %2 a %3 x %4 pulgadas.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>El controlador de esta impresora solo acepta los tamaños de página de su lista.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Lo decide la impresora (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Vacío: lo decide la impresora (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>El controlador de esta impresora no tiene ajustes de etiquetas. Solo tienen efecto el tamaño de página y la orientación.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 y %2 no se pueden usar a la vez.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Este preajuste no puede contener los ajustes actuales de la impresora: %1. Al elegirlo, cambiarían.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Propiedades de la impresora de etiquetas</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Elegir una &amp;impresora:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Cola</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>No acepta trabajos</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Imprimir etiqueta de &amp;prueba</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Muestra y cambia los ajustes de una impresora de etiquetas.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Lista las colas; la predeterminada se marca con un asterisco.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>no existe la impresora «%1»; --list indica las que hay</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Propiedades de la impresora de etiquetas</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>La cola, en lugar de una elegida de una lista.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Imprime una etiqueta para ajustar los desplazamientos y la densidad, en la cola indicada o en la predeterminada.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>No se puede acceder al servicio de impresión: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>No hay impresoras configuradas.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>No se pudo imprimir la etiqueta de prueba: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>no hay impresora predeterminada; indique una con -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>La etiqueta de prueba se envió a %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>no se puede mostrar ninguna ventana: ni DISPLAY ni WAYLAND_DISPLAY están definidas</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>no se puede mostrar ninguna ventana con %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>La impresora predeterminada «%1» no existe.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>No se pudieron guardar los preajustes.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>No se pudieron guardar los ajustes: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Estos ajustes no se pueden usar a la vez:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>¿Desea cambiarlos por los siguientes?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opciones]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opción desconocida «%1».</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta un valor tras «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado tras «%1».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Este preajuste contiene los ajustes actuales de este controlador.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Este preajuste contiene los ajustes predeterminados originales de este controlador.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Preferencias de impresión de %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiquetas con separación</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiquetas con marcas</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Sin corte</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Cortar tras el trabajo</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Cortar tras cada página</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Densidad de impresión %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Velocidad %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Desplazamiento %1, %2 puntos</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Ajustes predeterminados</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Etiqueta de prueba</translation>
    </message>
</context>
</TS>
